/// What the providers of dimensions and of leaders read alike.
#pragma once

#include <database/dimension_style.h>

#include <providers/row_readers.h>

/// "Yes" if what a dimension or leader measures is tied to other entities, else "No".
KdString associativeText(const KdDbEntity& entity);

/// The name of a lineweight in the units of "LWUNITS".
KdString lineweightText(int weight);

/// The text shown for the arrowhead that a block draws.
KdString arrowText(KdDbObjectId block);

/// The name of a record of a symbol table of class `Record`; empty where it is not to be had.
template <class Record>
KdString nameOfRecord(KdDbObjectId id)
{
    KdString name;
    if (!id.isKindOf(Record::desc()))
        return name;
    if (const OpenForRead<Record> record(id); record)
        record->getName(name);
    return name;
}

/// Reads the name of a dimension style, with the names of all styles of the working drawing as
/// choices. Without a style the head stays without a text and the property counts as not
/// recognised, although the choices follow.
bool readDimensionStyle(const PropertyRequest& request, ValueKind kind, KdDbObjectId style);

/// Reads the name of a linetype; without one that of the first linetype of the drawing.
bool readLinetype(const PropertyRequest& request, ValueKind kind, KdDbObjectId linetype);

/// Chains the names of all lineweights, in millimetres.
void chainLineweights(ResBuf& head);

// Choices. Linetypes and lineweights are only offered with their display texts.
bool lineweightsForDisplay(const PropertyRequest& request);
bool linetypesForDisplay(const PropertyRequest& request);
