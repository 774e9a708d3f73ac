/// Texts along an arc, and texts computed from an expression or a file.
#pragma once

#include <entities/declare.h>

KD_DB_PLAIN_ENTITY(KdDbArcAlignedText, KdDbEntity)
KD_DB_PLAIN_ENTITY(KdDbRText, KdDbEntity)
