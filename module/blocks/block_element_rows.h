/// Rows that read the element behind an entity, and the runs of rows that families share.
#pragma once

#include <entities/block_elements.h>
#include <plugin/entity_pe.h>

#include <providers/row_readers.h>

namespace block_elements {

/// Applies `read` to the element that the entity shows; see `KdDbBlockElementEntity::readElement`.
template <class Element, class Read>
auto readElement(const KdDbEntity& entity, Read read)
{
    return static_cast<const KdDbBlockElementEntity&>(entity).readElement<Element>(read);
}

/// What an operation of the element, or a free function that takes it, gives.
template <auto Getter>
auto elementValue(const KdDbEntity& entity)
{
    using Element = typename row_readers::HostOf<decltype(Getter)>::Type;
    using Value = std::decay_t<decltype(std::invoke(Getter, std::declval<const Element&>()))>;
    return readElement<Element>(
        entity, [](const Element& element) -> Value { return std::invoke(Getter, element); });
}

// Readers of rows.

template <auto Getter>
bool element(const PropertyRequest& request, ValueKind kind)
{
    request.head.setRestype(kind);
    store(request.head, elementValue<Getter>(request.entity));
    return true;
}

/// A point without its z.
template <auto Getter>
bool flatPoint(const PropertyRequest& request, ValueKind kind)
{
    const auto point = elementValue<Getter>(request.entity);
    request.head.setRestype(kind);
    request.head.setPoint2d({point.x, point.y});
    return true;
}

/// The name, or the description, of a label.
template <auto Label>
bool labelName(const PropertyRequest& request, ValueKind kind)
{
    request.head.setRestype(kind);
    request.head.setString(elementValue<Label>(request.entity).name);
    return true;
}
template <auto Label>
bool labelDescription(const PropertyRequest& request, ValueKind kind)
{
    request.head.setRestype(kind);
    request.head.setString(elementValue<Label>(request.entity).description);
    return true;
}

/// One of some names by number; empty for a number without a name.
void storeName(ResBuf& head, ValueKind kind, std::span<const ResourceText> names,
               std::size_t number);
/// All of them behind the value, if choices are asked for.
bool chainNames(const PropertyRequest& request, std::span<const ResourceText> names);

/// Texts for false and true, 0 and 1 and so on.
template <auto Getter, const auto& Names>
bool nameOf(const PropertyRequest& request, ValueKind kind)
{
    storeName(request.head, kind, Names,
              static_cast<std::size_t>(elementValue<Getter>(request.entity)));
    return true;
}
template <const auto& Names>
bool namesOf(const PropertyRequest& request)
{
    return chainNames(request, Names);
}

/// "None", "Increment" or "List".
KdString valueSetName(const KdDbBlockParamValueSet& set);
bool valueSetNames(const PropertyRequest& request);

template <auto Set>
bool valueSet(const PropertyRequest& request, ValueKind kind)
{
    request.head.setRestype(kind);
    request.head.setString(valueSetName(elementValue<Set>(request.entity)));
    return true;
}

// Runs of rows.

std::span<const PropertyRow> typeRows();      ///< what kind of element it is
std::span<const PropertyRow> parameterRows(); ///< what all parameters have
std::span<const PropertyRow> baseRows();      ///< the base point
std::span<const PropertyRow> endRows();       ///< the other point
std::span<const PropertyRow> twoPointRows();  ///< start and end

/// The provider of one class of elements. `Self::listed()` gives functions that give runs of rows;
/// they stand behind the General keys in an order of the class's own, whatever its base lists.
/// Keys that are not among them are the base's to answer.
template <class Self, class Base, class Host>
class ElementProvider : public Base
{
  public:
    int PropertyCount(const KdDbEntity* entity, KdArray<KdString>& names,
                      KdArray<bool>& flags) override
    {
        const int status = KdDbEntityPE::PropertyCount(entity, names, flags);
        for (const auto run : Self::listed())
            listRows(run(), entity, names, flags);
        return status;
    }

    int PropertyValueGet(const KdDbEntity* entity, KdString name, ResBuf*& result,
                         bool asDisplayText, bool withChoices) override
    {
        if (!entity || !entity->isKindOf(Host::desc()))
            return 0;
        for (const auto run : Self::listed()) {
            if (const PropertyRow* row = findRow(run(), name))
                return answerRow(*row, {*entity, *result, asDisplayText, withChoices});
        }
        return Base::PropertyValueGet(entity, name, result, asDisplayText, withChoices);
    }
};

using RowRun = std::span<const PropertyRow> (*)();

} // namespace block_elements
