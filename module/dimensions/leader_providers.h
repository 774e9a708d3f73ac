/// Providers of the leaders.
#pragma once

#include <entities/all.h>

#include <providers/entity_pe.h>
#include <providers/table_provider.h>

KW_CLASS_CHECKED_PROVIDER(KdDbLeader_Extension, KdDbEntity_Extension, KdDbLeader)
KW_CLASS_CHECKED_PROVIDER(KdDbMLeader_Extension, KdDbEntity_Extension, KdDbMLeader)
