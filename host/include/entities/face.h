/// Faces with three or four corners.
#pragma once

#include <entities/declare.h>

KD_DB_PLAIN_ENTITY(KdDbFace, KdDbEntity)
KD_DB_PLAIN_ENTITY(KdDbSolid, KdDbEntity)
KD_DB_PLAIN_ENTITY(KdDbTrace, KdDbEntity)
