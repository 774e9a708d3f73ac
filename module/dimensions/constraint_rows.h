/// The properties of dimensional constraints.
#pragma once

#include <providers/property_row.h>

class KdDbAssocVariable;
class KdDbDimension;

/// Listed for dimensions that are constraints. Their keys are compared without case.
std::span<const PropertyRow> constraintRows();

/// The row with that key, or null.
const PropertyRow* findConstraintRow(const KdString& name);
/// The same, as `findLastingRow` has it.
LastingRow findLastingConstraintRow(const KdString& name);

/// See `KdDbDimension_Extension::getVariableFromDimConstraint`.
KdDbAssocVariable* variableOfConstraint(const KdDbDimension* dimension);
