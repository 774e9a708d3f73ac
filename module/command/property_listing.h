/// What the module knows of types and properties, for programs without the dialog.
#pragma once

#include <plugin/quick_select.h>

/// The types in the current space, or in `ss` if that is not null, in the order of their first
/// entities. Says nothing and calls nobody if there are none.
void listTypes(const long* ss, quick_select::TypeVisitor visitor, void* context);

/// The entities in the current space, or in `ss`, in their order.
void listEntities(const long* ss, quick_select::EntityVisitor visitor, void* context);

/// The properties of an entity in the order of its provider, or the one with the key `onlyKey` if
/// that is not null, with their values. Texts are valid during the call of the visitor. Nothing for
/// an id that can't be opened or has no provider.
void listProperties(KdDbObjectId entity, const wchar_t* onlyKey, bool withChoices,
                    quick_select::PropertyVisitor visitor, void* context);

/// The operators that values of a kind offer, in the dialog's order.
void listOperators(int restype, quick_select::OperatorVisitor visitor, void* context);
