/// Shapes: letters of a shape file, placed by themselves.
#pragma once

#include <entities/declare.h>

KD_DB_PLAIN_ENTITY(KdDbShape, KdDbEntity)
