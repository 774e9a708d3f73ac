/// The provider of all dimensions: what the kinds have in common.
#pragma once

#include <entities/dimension.h>
#include <plugin/entity_pe.h>

#include <providers/lasting_row.h>

class KdDbAssocVariable;

class KdDbDimension_Extension : public KdDbEntity_Extension
{
  public:
    /// As in the protocol, but returns `kListIsComplete` for a dynamic constraint: of that, the
    /// names of all other properties are taken out again, while the flags keep theirs.
    int PropertyCount(const KdDbEntity* entity, KdArray<KdString>& names,
                      KdArray<bool>& flags) override;
    int PropertyValueGet(const KdDbEntity* entity, KdString name, ResBuf*& result,
                         bool asDisplayText, bool withChoices) override;
    using SaysRows = KdDbDimension_Extension;
    LastingRow lastingRow(const KdRxClass& rxClass, const KdString& key);

    /// The status that tells the provider of a kind to list nothing more.
    static constexpr int kListIsComplete = 1;

    /// True if `value`, the value of a variable for zero suppression, leaves out the zeros of
    /// `mask`: 1 inches, 2 feet, 4 leading, 8 trailing.
    bool isSuppressed(signed char value, signed char mask);

    /// The record behind a key in a list of extended data, which begins with the application's name
    /// and goes on in pairs; null if the key is not there. The list keeps it.
    resbuf* findDimXdataValue(resbuf* list, int key);
    /// How the style aligns tolerances: 0 by the sign, 1 by the decimal point. 0 for null and for a
    /// style that does not say.
    short GetDimStylePSV_DIMTALN(KdDbDimStyleTableRecord* style);

    /// The variable behind a dimensional constraint, closed; null for any other dimension and where
    /// the drawing lacks it. The database owns it.
    KdDbAssocVariable* getVariableFromDimConstraint(const KdDbDimension* dimension);

    /// What stands before and behind an alternate measurement, as a text with a tag of 0 behind it
    /// in every call. False, with `result` untouched, for null.
    bool getAltPrefix(const KdDbDimension* dimension, ResBuf*& result);
    bool getAltSuffix(const KdDbDimension* dimension, ResBuf*& result);
};
