/// Properties that block references have by what their blocks hold: attributes by their tags, and
/// the properties of dynamic blocks by their names. The module answers for them, but lists them
/// nowhere.
#pragma once

#include <common/catalog.h>

/// Appends a property for each tag and each name that references of a type have in the current
/// space, in the order in which they are met. Nothing for a type that is no block reference.
void appendOpenKeys(const Module& module, const TypeEntry& type,
                    std::vector<PropertyEntry>& properties);
/// Appends the ones that an entity has; nothing for one that is no block reference.
void appendOpenKeysOf(const Module& module, KdDbObjectId entity,
                      std::vector<PropertyEntry>& properties);
