/// Providers of texts and of what is written like them.
#pragma once

#include <entities/all.h>

#include <providers/entity_pe.h>
#include <providers/table_provider.h>

KW_CLASS_CHECKED_PROVIDER(KdDbArcAlignedText_Extension, KdDbEntity_Extension, KdDbArcAlignedText)
KW_CLASS_CHECKED_PROVIDER(KdDbAttributeDefinition_Extension, KdDbEntity_Extension,
                          KdDbAttributeDefinition)
KW_CLASS_CHECKED_PROVIDER(KdDbFcf_Extension, KdDbEntity_Extension, KdDbFcf)
KW_CLASS_CHECKED_PROVIDER(KdDbMText_Extension, KdDbEntity_Extension, KdDbMText)
KW_CLASS_CHECKED_PROVIDER(KdDbShape_Extension, KdDbEntity_Extension, KdDbShape)
KW_CLASS_CHECKED_PROVIDER(KdDbText_Extension, KdDbEntity_Extension, KdDbText)
