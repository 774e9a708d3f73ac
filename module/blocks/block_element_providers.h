/// Providers of the elements that a dynamic block definition is made of.
#pragma once

#include <entities/all.h>

#include <providers/entity_pe.h>
#include <providers/table_provider.h>

// clang-format off
KW_CLASS_CHECKED_PROVIDER(KdDbBlockElementEntity_Extension, KdDbEntity_Extension, KdDbBlockElementEntity)

KW_CLASS_CHECKED_PROVIDER(KdDbBlockParameterEntity_Extension, KdDbBlockElementEntity_Extension, KdDbBlockParameterEntity)
KW_CLASS_CHECKED_PROVIDER(KdDbBlockActionEntity_Extension, KdDbBlockElementEntity_Extension, KdDbBlockActionEntity)
KW_CLASS_CHECKED_PROVIDER(KdDbBlockGripEntity_Extension, KdDbBlockElementEntity_Extension, KdDbBlockGripEntity)

KW_CLASS_CHECKED_PROVIDER(KdDbBlock1PtParameterEntity_Extension, KdDbBlockParameterEntity_Extension, KdDbBlock1PtParameterEntity)
KW_CLASS_CHECKED_PROVIDER(KdDbBlock2PtParameterEntity_Extension, KdDbBlockParameterEntity_Extension, KdDbBlock2PtParameterEntity)

KW_CLASS_CHECKED_PROVIDER(KdDbBlockBasepointParameterEntity_Extension, KdDbBlock1PtParameterEntity_Extension, KdDbBlockBasepointParameterEntity)
KW_CLASS_CHECKED_PROVIDER(KdDbBlockPointParameterEntity_Extension, KdDbBlock1PtParameterEntity_Extension, KdDbBlockPointParameterEntity)
KW_CLASS_CHECKED_PROVIDER(KdDbBlockLookupParameterEntity_Extension, KdDbBlock1PtParameterEntity_Extension, KdDbBlockLookupParameterEntity)
KW_CLASS_CHECKED_PROVIDER(KdDbBlockVisibilityParameterEntity_Extension, KdDbBlock1PtParameterEntity_Extension, KdDbBlockVisibilityParameterEntity)

KW_CLASS_CHECKED_PROVIDER(KdDbBlockAlignmentParameterEntity_Extension, KdDbBlock2PtParameterEntity_Extension, KdDbBlockAlignmentParameterEntity)
KW_CLASS_CHECKED_PROVIDER(KdDbBlockFlipParameterEntity_Extension, KdDbBlock2PtParameterEntity_Extension, KdDbBlockFlipParameterEntity)
KW_CLASS_CHECKED_PROVIDER(KdDbBlockLinearParameterEntity_Extension, KdDbBlock2PtParameterEntity_Extension, KdDbBlockLinearParameterEntity)
KW_CLASS_CHECKED_PROVIDER(KdDbBlockPolarParameterEntity_Extension, KdDbBlock2PtParameterEntity_Extension, KdDbBlockPolarParameterEntity)
KW_CLASS_CHECKED_PROVIDER(KdDbBlockRotationParameterEntity_Extension, KdDbBlock2PtParameterEntity_Extension, KdDbBlockRotationParameterEntity)
KW_CLASS_CHECKED_PROVIDER(KdDbBlockXYParameterEntity_Extension, KdDbBlock2PtParameterEntity_Extension, KdDbBlockXYParameterEntity)

KW_CLASS_CHECKED_PROVIDER(KdDbBlockActionEntityWithBasePt_Extension, KdDbBlockActionEntity_Extension, KdDbBlockActionEntityWithBasePt)
KW_CLASS_CHECKED_PROVIDER(KdDbBlockArrayActionEntity_Extension, KdDbBlockActionEntity_Extension, KdDbBlockArrayActionEntity)
KW_CLASS_CHECKED_PROVIDER(KdDbBlockFlipActionEntity_Extension, KdDbBlockActionEntity_Extension, KdDbBlockFlipActionEntity)
KW_CLASS_CHECKED_PROVIDER(KdDbBlockLookupActionEntity_Extension, KdDbBlockActionEntity_Extension, KdDbBlockLookupActionEntity)
KW_CLASS_CHECKED_PROVIDER(KdDbBlockMoveActionEntity_Extension, KdDbBlockActionEntity_Extension, KdDbBlockMoveActionEntity)
KW_CLASS_CHECKED_PROVIDER(KdDbBlockPolarStretchActionEntity_Extension, KdDbBlockActionEntity_Extension, KdDbBlockPolarStretchActionEntity)
KW_CLASS_CHECKED_PROVIDER(KdDbBlockStretchActionEntity_Extension, KdDbBlockActionEntity_Extension, KdDbBlockStretchActionEntity)
KW_CLASS_CHECKED_PROVIDER(KdDbBlockRotateActionEntity_Extension, KdDbBlockActionEntityWithBasePt_Extension, KdDbBlockRotateActionEntity)
KW_CLASS_CHECKED_PROVIDER(KdDbBlockScaleActionEntity_Extension, KdDbBlockActionEntityWithBasePt_Extension, KdDbBlockScaleActionEntity)
// clang-format on

/// Base of the constraint providers. Each serves the tags and the parameters of its kind.
class KdDbBlockConstraintTagEntity_Extension : public KdDbBlock2PtParameterEntity_Extension
{
  public:
    explicit KdDbBlockConstraintTagEntity_Extension(int kind) : m_kind(kind) {}
    int kind() const { return m_kind; }

  private:
    int m_kind; ///< 1 linear, 2 angular, 0 radial and diametric
};

#define KW_CONSTRAINT_TAG_PROVIDER(Provider, kind)                                                 \
    class Provider : public KdDbBlockConstraintTagEntity_Extension                                 \
    {                                                                                              \
      public:                                                                                      \
        Provider() : KdDbBlockConstraintTagEntity_Extension(kind) {}                               \
    };

KW_CONSTRAINT_TAG_PROVIDER(KdDbBlockLinearConstraintTagEntity_Extension, 1)
KW_CONSTRAINT_TAG_PROVIDER(KdDbBlockAngularConstraintTagEntity_Extension, 2)
KW_CONSTRAINT_TAG_PROVIDER(KdDbBlockDiametricConstraintTagEntity_Extension, 0)
KW_CONSTRAINT_TAG_PROVIDER(KdDbBlockRadialConstraintTagEntity_Extension, 0)
