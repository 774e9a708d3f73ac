/// Images, and the blank areas that work like them.
#pragma once

#include <entities/declare.h>

KD_DB_PLAIN_ENTITY(KdDbImage, KdDbEntity)
KD_DB_PLAIN_ENTITY(KdDbRasterImage, KdDbImage)
KD_DB_PLAIN_ENTITY(KdDbWipeout, KdDbRasterImage)
