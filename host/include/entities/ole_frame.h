/// Objects of other programs, embedded or linked.
#pragma once

#include <entities/declare.h>

KD_DB_PLAIN_ENTITY(KdDbFrame, KdDbEntity)
KD_DB_PLAIN_ENTITY(KdDbOleFrame, KdDbFrame)
KD_DB_PLAIN_ENTITY(KdDbOle2Frame, KdDbOleFrame)
