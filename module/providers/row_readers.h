/// The vocabulary of property rows: flags, readers and choices from which most rows are put
/// together.
#pragma once

#include <array>
#include <concepts>
#include <type_traits>

#include <providers/property_row.h>

// Flags.

inline bool editable(const KdDbEntity*)
{
    return false;
}

/// For values that follow from others.
inline bool derived(const KdDbEntity*)
{
    return true;
}

// Conditions of listing.

inline bool never(const KdDbEntity*)
{
    return false;
}

/// Listed for entities of `Host` for which `Condition` holds; not for others or a null entity.
template <class Host, bool (*Condition)(const Host&)>
bool when(const KdDbEntity* entity)
{
    return entity && entity->isKindOf(Host::desc()) && Condition(static_cast<const Host&>(*entity));
}

// Readers.

/// Puts a value into a record by the record's own kind.
inline void store(ResBuf& record, const KdString& value)
{
    record.setString(value);
}
inline void store(ResBuf& record, double value)
{
    record.setDouble(value);
}
inline void store(ResBuf& record, bool value)
{
    record.setBool(value);
}
inline void store(ResBuf& record, const KdGePoint2d& value)
{
    record.setPoint2d(value);
}
inline void store(ResBuf& record, const KdGePoint3d& value)
{
    record.setPoint3d(value);
}
inline void store(ResBuf& record, const KdGeVector3d& value)
{
    record.setPoint3d({value.x, value.y, value.z});
}
inline void store(ResBuf& record, const KdCmColor& value)
{
    record.setColor(value);
}
template <class Integer>
requires(std::integral<Integer> && !std::same_as<Integer, bool>) ||
    std::is_enum_v<Integer> void store(ResBuf& record, Integer value)
{
    switch (record.restype()) {
    case ResBuf::kInt8:
        record.setInt8(static_cast<signed char>(value));
        break;
    case ResBuf::kInt16:
        record.setInt16(static_cast<short>(value));
        break;
    default:
        record.setInt32(static_cast<int>(value));
    }
}

namespace row_readers {

/// The class whose member or whose free function's argument a getter reads.
template <class Getter>
struct HostOf;
template <class Host, class Value>
struct HostOf<Value (Host::*)() const>
{
    using Type = Host;
};
template <class Host, class Value>
struct HostOf<Value (*)(const Host&)>
{
    using Type = Host;
};

template <auto Getter>
decltype(auto) get(const KdDbEntity& entity)
{
    using Host = typename HostOf<decltype(Getter)>::Type;
    return std::invoke(Getter, static_cast<const Host&>(entity));
}

} // namespace row_readers

/// The value of a member operation or of a free function that takes the entity, as the row's kind.
template <auto Getter>
bool value(const PropertyRequest& request, ValueKind kind)
{
    request.head.setRestype(kind);
    store(request.head, row_readers::get<Getter>(request.entity));
    return true;
}

/// The same for names: as the row's kind, or as a plain text where a display text is asked for.
template <auto Getter>
bool name(const PropertyRequest& request, ValueKind kind)
{
    return value<Getter>(request, request.asDisplayText ? ResBuf::kString : kind);
}

/// Reader of rows that are listed like others, but answered by a provider's own operation before
/// the rows are looked at.
inline bool answeredByTheProvider(const PropertyRequest&, ValueKind)
{
    return false;
}

// Choices.

/// Nothing accompanies the value.
inline bool noChoices(const PropertyRequest&)
{
    return true;
}

/// One 8-bit record behind the value.
void chainTag(ResBuf& head, signed char number);

template <signed char Number>
bool tag(const PropertyRequest& request)
{
    if (request.withChoices)
        chainTag(request.head, Number);
    return true;
}
