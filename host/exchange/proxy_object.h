// Objects of kinds that are not known here.
#pragma once

#include <database/object.h>

/// Stands for an object without a picture, so that its handle and its extended data are there.
class KdDbProxyObject : public KdDbObject
{
    KD_RX_DECLARE(KdDbProxyObject)
};
