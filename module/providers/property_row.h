/// The rows of which providers are made: one for each property.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include <database/entity.h>
#include <plugin/res_buf.h>
#include <runtime/kd_array.h>

/// A text by resource number with the default that stands in where the library lacks it.
struct ResourceText
{
    int id;
    const wchar_t* defaultText;

    KdString text() const;
    /// True if the library has the text, so that no use of it complains.
    bool isThere() const;
    /// True if `other` is this text, letter by letter. Allocates nothing.
    bool matches(std::wstring_view other) const;
    /// The same, whatever the case of the letters.
    bool matchesNoCase(const KdString& other) const;
};

/// What a caller of `PropertyValueGet` wants.
struct PropertyRequest
{
    const KdDbEntity& entity;
    ResBuf& head; ///< receives the value; more records may be chained behind it
    bool asDisplayText;
    bool withChoices;
};

using ValueKind = ResBuf::ValueType;

/// One property. The walkers below list the rows and answer from them.
struct PropertyRow
{
    ResourceText key;
    /// The flag beside the key, true if the value can't be set. The entity may be null.
    bool (*readOnly)(const KdDbEntity*);
    ValueKind kind;
    /// Sets restype and value of the head. False, with the head untouched: not recognised.
    bool (*read)(const PropertyRequest&, ValueKind);
    /// Chains what accompanies the value. False: the property counts as not recognised.
    bool (*choices)(const PropertyRequest&) = [](const PropertyRequest&) { return true; };
    /// Whether the key is listed for this entity, which may be null.
    bool (*listed)(const KdDbEntity*) = [](const KdDbEntity*) { return true; };
};

/// Appends keys and flags of the rows that are listed for `entity`.
void listRows(std::span<const PropertyRow> rows, const KdDbEntity* entity, KdArray<KdString>& names,
              KdArray<bool>& flags);

/// The first row with that key, or null.
const PropertyRow* findRow(std::span<const PropertyRow> rows, const KdString& name);

/// The row that answers a key for every entity of a class, or null where nothing answers it.
/// Nothing where each entity has to be asked for itself.
using LastingRow = std::optional<const PropertyRow*>;

/// As `findRow`, for a caller that keeps the answer. Nothing where the provider answers the key by
/// itself, or where the library lacks a text: that is to be told at each use.
LastingRow findLastingRow(std::span<const PropertyRow> rows, const KdString& name);

/// Reads the row's value and choices. Returns 1, or 0 if the row says so.
int answerRow(const PropertyRow& row, const PropertyRequest& request);
