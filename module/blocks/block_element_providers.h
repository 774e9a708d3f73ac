/// Providers of the elements that a dynamic block definition is made of. A list is put together of
/// runs in an order of each class's own; what a class does not list, its bases still answer.
#pragma once

#include <entities/all.h>
#include <plugin/entity_pe.h>

#include <blocks/block_element_rows.h>
#include <providers/table_provider.h>

#define KW_ELEMENT_PROVIDER(Provider, Base, Host)                                                  \
    class Provider : public block_elements::ElementProvider<Provider, Base, Host>                  \
    {                                                                                              \
      public:                                                                                      \
        static std::span<const block_elements::RowRun> listed();                                   \
    };

// clang-format off
KW_ELEMENT_PROVIDER(KdDbBlockElementEntity_Extension, KdDbEntity_Extension, KdDbBlockElementEntity)

KW_ELEMENT_PROVIDER(KdDbBlockParameterEntity_Extension, KdDbBlockElementEntity_Extension, KdDbBlockParameterEntity)
KW_ELEMENT_PROVIDER(KdDbBlockGripEntity_Extension, KdDbBlockElementEntity_Extension, KdDbBlockGripEntity)

KW_ELEMENT_PROVIDER(KdDbBlock1PtParameterEntity_Extension, KdDbBlockParameterEntity_Extension, KdDbBlock1PtParameterEntity)
KW_ELEMENT_PROVIDER(KdDbBlock2PtParameterEntity_Extension, KdDbBlockParameterEntity_Extension, KdDbBlock2PtParameterEntity)

KW_ELEMENT_PROVIDER(KdDbBlockBasepointParameterEntity_Extension, KdDbBlock1PtParameterEntity_Extension, KdDbBlockBasepointParameterEntity)
KW_ELEMENT_PROVIDER(KdDbBlockPointParameterEntity_Extension, KdDbBlock1PtParameterEntity_Extension, KdDbBlockPointParameterEntity)
KW_ELEMENT_PROVIDER(KdDbBlockLookupParameterEntity_Extension, KdDbBlock1PtParameterEntity_Extension, KdDbBlockLookupParameterEntity)
KW_ELEMENT_PROVIDER(KdDbBlockVisibilityParameterEntity_Extension, KdDbBlock1PtParameterEntity_Extension, KdDbBlockVisibilityParameterEntity)

KW_ELEMENT_PROVIDER(KdDbBlockAlignmentParameterEntity_Extension, KdDbBlock2PtParameterEntity_Extension, KdDbBlockAlignmentParameterEntity)
KW_ELEMENT_PROVIDER(KdDbBlockFlipParameterEntity_Extension, KdDbBlock2PtParameterEntity_Extension, KdDbBlockFlipParameterEntity)
KW_ELEMENT_PROVIDER(KdDbBlockLinearParameterEntity_Extension, KdDbBlock2PtParameterEntity_Extension, KdDbBlockLinearParameterEntity)
KW_ELEMENT_PROVIDER(KdDbBlockPolarParameterEntity_Extension, KdDbBlock2PtParameterEntity_Extension, KdDbBlockPolarParameterEntity)
KW_ELEMENT_PROVIDER(KdDbBlockRotationParameterEntity_Extension, KdDbBlock2PtParameterEntity_Extension, KdDbBlockRotationParameterEntity)
KW_ELEMENT_PROVIDER(KdDbBlockXYParameterEntity_Extension, KdDbBlock2PtParameterEntity_Extension, KdDbBlockXYParameterEntity)
// clang-format on

/// Actions differ in what stands between their position and their name.
class KdDbBlockActionEntity_Extension : public KdDbBlockElementEntity_Extension
{
  public:
    int PropertyCount(const KdDbEntity* entity, KdArray<KdString>& names,
                      KdArray<bool>& flags) override;
    int PropertyValueGet(const KdDbEntity* entity, KdString name, ResBuf*& result,
                         bool asDisplayText, bool withChoices) override;
    /// Appends the keys of the class itself; here none. Binary interface: comes behind the four
    /// operations of the protocol.
    virtual void PropertyCounEx(const KdDbEntity* entity, KdArray<KdString>& names,
                                KdArray<bool>& flags);
};

namespace block_elements {

/// An action with rows of its own.
template <class Self, class Base, class Host>
class ActionProvider : public Base
{
  public:
    void PropertyCounEx(const KdDbEntity* entity, KdArray<KdString>& names,
                        KdArray<bool>& flags) override
    {
        listRows(Self::rows(), entity, names, flags);
    }

    int PropertyValueGet(const KdDbEntity* entity, KdString name, ResBuf*& result,
                         bool asDisplayText, bool withChoices) override
    {
        if (!entity || !entity->isKindOf(Host::desc()))
            return 0;
        if (const PropertyRow* row = findRow(Self::rows(), name))
            return answerRow(*row, {*entity, *result, asDisplayText, withChoices});
        return Base::PropertyValueGet(entity, name, result, asDisplayText, withChoices);
    }
};

} // namespace block_elements

#define KW_ACTION_PROVIDER(Provider, Base, Host)                                                   \
    class Provider : public block_elements::ActionProvider<Provider, Base, Host>                   \
    {                                                                                              \
      public:                                                                                      \
        static std::span<const PropertyRow> rows();                                                \
    };

// clang-format off
KW_ACTION_PROVIDER(KdDbBlockActionEntityWithBasePt_Extension, KdDbBlockActionEntity_Extension, KdDbBlockActionEntityWithBasePt)
KW_ACTION_PROVIDER(KdDbBlockArrayActionEntity_Extension, KdDbBlockActionEntity_Extension, KdDbBlockArrayActionEntity)
KW_ACTION_PROVIDER(KdDbBlockMoveActionEntity_Extension, KdDbBlockActionEntity_Extension, KdDbBlockMoveActionEntity)
KW_ACTION_PROVIDER(KdDbBlockPolarStretchActionEntity_Extension, KdDbBlockActionEntity_Extension, KdDbBlockPolarStretchActionEntity)
KW_ACTION_PROVIDER(KdDbBlockStretchActionEntity_Extension, KdDbBlockActionEntity_Extension, KdDbBlockStretchActionEntity)
KW_CLASS_CHECKED_PROVIDER(KdDbBlockFlipActionEntity_Extension, KdDbBlockActionEntity_Extension, KdDbBlockFlipActionEntity)
KW_CLASS_CHECKED_PROVIDER(KdDbBlockLookupActionEntity_Extension, KdDbBlockActionEntity_Extension, KdDbBlockLookupActionEntity)
KW_CLASS_CHECKED_PROVIDER(KdDbBlockRotateActionEntity_Extension, KdDbBlockActionEntityWithBasePt_Extension, KdDbBlockRotateActionEntity)
KW_CLASS_CHECKED_PROVIDER(KdDbBlockScaleActionEntity_Extension, KdDbBlockActionEntityWithBasePt_Extension, KdDbBlockScaleActionEntity)
// clang-format on

/// Base of the constraint providers. Each serves the tags and the parameters of its kind: what
/// differs between kinds stands in the overrides, which know those two classes alone.
class KdDbBlockConstraintTagEntity_Extension : public KdDbBlock2PtParameterEntity_Extension
{
  public:
    enum Kind
    {
        kRound = 0, ///< radial and diametric
        kLinear = 1,
        kAngular = 2,
    };

    explicit KdDbBlockConstraintTagEntity_Extension(int kind) : m_kind(kind) {}
    int kind() const { return m_kind; }

    int PropertyCount(const KdDbEntity* entity, KdArray<KdString>& names,
                      KdArray<bool>& flags) override;
    int PropertyValueGet(const KdDbEntity* entity, KdString name, ResBuf*& result,
                         bool asDisplayText, bool withChoices) override;

    // Binary interface: these come behind the four operations of the protocol, in this order. An
    // entity of another kind gives the neutral value.

    virtual KdString getDistName(const KdDbEntity* entity);
    virtual KdString getDistDesc(const KdDbEntity* entity);
    /// "None", "Increment" or "List".
    virtual KdString getValSetType(const KdDbEntity* entity);
    virtual KdGePoint2d getTextPosition(const KdDbEntity* entity);
    virtual KdGePoint2d getBasePosition(const KdDbEntity* entity);
    virtual double getDimlineOffset(const KdDbEntity* entity);

  private:
    std::int32_t m_kind;
};

class KdDbBlockLinearConstraintTagEntity_Extension : public KdDbBlockConstraintTagEntity_Extension
{
  public:
    KdDbBlockLinearConstraintTagEntity_Extension() : KdDbBlockConstraintTagEntity_Extension(kLinear)
    {
    }
    KdString getDistName(const KdDbEntity* entity) override;
    KdString getDistDesc(const KdDbEntity* entity) override;
    KdString getValSetType(const KdDbEntity* entity) override;
    double getDimlineOffset(const KdDbEntity* entity) override;
};

class KdDbBlockAngularConstraintTagEntity_Extension : public KdDbBlockConstraintTagEntity_Extension
{
  public:
    KdDbBlockAngularConstraintTagEntity_Extension()
        : KdDbBlockConstraintTagEntity_Extension(kAngular)
    {
    }
    KdString getDistName(const KdDbEntity* entity) override;
    KdString getDistDesc(const KdDbEntity* entity) override;
    KdString getValSetType(const KdDbEntity* entity) override;
    KdGePoint2d getTextPosition(const KdDbEntity* entity) override;
    KdGePoint2d getBasePosition(const KdDbEntity* entity) override;
};

/// Radial and diametric constraints differ in their classes alone.
template <class Parameter, class ParameterEntity, class TagEntity>
class RoundConstraintProvider : public KdDbBlockConstraintTagEntity_Extension
{
  public:
    RoundConstraintProvider() : KdDbBlockConstraintTagEntity_Extension(kRound) {}
    KdString getDistName(const KdDbEntity* entity) override;
    KdString getDistDesc(const KdDbEntity* entity) override;
    KdString getValSetType(const KdDbEntity* entity) override;
    KdGePoint2d getTextPosition(const KdDbEntity* entity) override;
};

class KdDbBlockDiametricConstraintTagEntity_Extension
    : public RoundConstraintProvider<KdDbBlockDiametricConstraintParameter,
                                     KdDbBlockDiametricConstraintParameterEntity,
                                     KdDbBlockDiametricConstraintTagEntity>
{
};
class KdDbBlockRadialConstraintTagEntity_Extension
    : public RoundConstraintProvider<KdDbBlockRadialConstraintParameter,
                                     KdDbBlockRadialConstraintParameterEntity,
                                     KdDbBlockRadialConstraintTagEntity>
{
};
