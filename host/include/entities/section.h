/// Section planes.
#pragma once

#include <entities/declare.h>

KD_DB_PLAIN_ENTITY(KdDbSection, KdDbEntity)
