/// Texts of attribute definitions.
#pragma once

#include <entities/attribute.h>

/// A text that looks like that of an attribute definition and says something else. It belongs to no
/// drawing.
std::unique_ptr<KdDbText> textLike(const KdDbAttributeDefinition& definition, const KdString& text);
