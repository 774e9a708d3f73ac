/// Providers of block references.
#pragma once

#include <entities/all.h>

#include <providers/entity_pe.h>
#include <providers/table_provider.h>

// clang-format off
KW_CLASS_CHECKED_PROVIDER(KdDbBlockReference_Extension, KdDbEntity_Extension, KdDbBlockReference)
KW_CLASS_CHECKED_PROVIDER(KdDbMInsertBlock_Extension, KdDbBlockReference_Extension, KdDbMInsertBlock)
// clang-format on
