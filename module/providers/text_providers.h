/// Providers of texts and of what is written like them.
#pragma once

#include <entities/all.h>
#include <plugin/entity_pe.h>
#include <runtime/std_str.h>

#include <providers/table_provider.h>

/// Lists nothing at all for entities of other classes, not even what its base lists.
template <class Self, class Base, class Host>
class StrictTableProvider : public TableProvider<Self, Base, Host>
{
  public:
    int PropertyCount(const KdDbEntity* entity, KdArray<KdString>& names,
                      KdArray<bool>& flags) override
    {
        if (!entity || !entity->isKindOf(Host::desc()))
            return 0;
        return TableProvider<Self, Base, Host>::PropertyCount(entity, names, flags);
    }
};

class KdDbText_Extension : public TableProvider<KdDbText_Extension, KdDbEntity_Extension, KdDbText>
{
  public:
    static std::span<const PropertyRow> rows();

    /// From "Geometry:Position" on the flags run one ahead of the names, as intended. Entities that
    /// are no texts have the general properties alone.
    int PropertyCount(const KdDbEntity* entity, KdArray<KdString>& names,
                      KdArray<bool>& flags) override;

    /// Gives the name of a text's alignment, which is empty for modes beyond the known ones. Does
    /// nothing for null.
    static void fillJustifyNameByTextEntity(KdDbText* text, CStdStr<wchar_t>* name);
};

class KdDbMText_Extension
    : public StrictTableProvider<KdDbMText_Extension, KdDbEntity_Extension, KdDbMText>
{
  public:
    static std::span<const PropertyRow> rows();
    /// Gives the name of a text's attachment, which is empty for a number beyond the known ones.
    /// Does nothing for null.
    static void fillJustifyNameByTextEntity(KdDbMText* text, KdString* name);
};

class KdDbAttributeDefinition_Extension
    : public TableProvider<KdDbAttributeDefinition_Extension, KdDbEntity_Extension,
                           KdDbAttributeDefinition>
{
  public:
    static std::span<const PropertyRow> rows();
    /// The same as that of texts, under ids of its own; an unknown horizontal mode counts as left.
    static void fillJustifyNameByTextEntity(KdDbAttributeDefinition* text, KdString* name);
};

/// Lists properties of its own and answers the general ones alone, for entities of any class.
class KdDbArcAlignedText_Extension : public KdDbEntity_Extension
{
  public:
    int PropertyCount(const KdDbEntity* entity, KdArray<KdString>& names,
                      KdArray<bool>& flags) override;
};

class KdDbFcf_Extension
    : public StrictTableProvider<KdDbFcf_Extension, KdDbEntity_Extension, KdDbFcf>
{
  public:
    static std::span<const PropertyRow> rows();
};

KW_TABLE_PROVIDER(KdDbShape_Extension, KdDbEntity_Extension, KdDbShape)
