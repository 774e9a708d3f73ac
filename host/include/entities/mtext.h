/// Texts of several lines.
#pragma once

#include <entities/declare.h>

KD_DB_PLAIN_ENTITY(KdDbMText, KdDbEntity)
