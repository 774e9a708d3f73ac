/// Rows of the maps from keys to getters.
#pragma once

#include <providers/property_row.h>

#include <blocks/block_reference_providers.h>

struct KeyGetter
{
    ResourceText key;
    KdDbBlockReference_Extension::Getter getter;
    unsigned kinds; ///< bits of the kinds of reference that list the key
};

/// Appends the keys of one kind, in the order of the rows. All of them can be set.
inline void listKeys(std::span<const KeyGetter> rows, unsigned kind, KdArray<KdString>& names,
                     KdArray<bool>& flags)
{
    for (const KeyGetter& row : rows) {
        if ((row.kinds & kind) != 0) {
            names.append(row.key.text());
            flags.append(false);
        }
    }
}

inline void fillGetters(std::span<const KeyGetter> rows,
                        KdDbBlockReference_Extension::Getters& getters)
{
    for (const KeyGetter& row : rows)
        getters.emplace(row.key.text(), row.getter);
}
