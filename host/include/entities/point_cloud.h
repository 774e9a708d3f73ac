/// Point clouds.
#pragma once

#include <entities/declare.h>

KD_DB_PLAIN_ENTITY(KdDbPointCloudEx, KdDbEntity)
