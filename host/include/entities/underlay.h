/// Pages of other files laid under a drawing.
#pragma once

#include <entities/declare.h>

KD_DB_PLAIN_ENTITY(KdDbUnderlayReference, KdDbEntity)
KD_DB_PLAIN_ENTITY(KdDbDgnReference, KdDbUnderlayReference)
KD_DB_PLAIN_ENTITY(KdDbDwfReference, KdDbUnderlayReference)
KD_DB_PLAIN_ENTITY(KdDbPdfReference, KdDbUnderlayReference)
