/// Lights.
#pragma once

#include <entities/declare.h>

KD_DB_PLAIN_ENTITY(KdDbLight, KdDbEntity)
