/// Dimension styles, and how entities use them.
#pragma once

#include <database/dimension_variables.h>
#include <database/symbol_table.h>

struct KW_EXPORT DimStyleMembers : SymbolTableRecordMembers
{
    KdDbDimValues variables; ///< those that differ from the initial values, at least
};

/// A dimension style. `dimasz()` and its like give the values of its variables.
class KW_EXPORT KdDbDimStyleTableRecord : public KdDbSymbolTableRecord
{
    KD_RX_DECLARE(KdDbDimStyleTableRecord)
    KD_DB_MEMBERS_TO_READ(DimStyleMembers)

    DimStyleMembers& edit();

    /// A style that names no text style, as in old drawings, uses the one called "Standard".
    const KdDbDimValue& dimensionVariable(KdDbDimVar variable) const;
    KD_DB_DIM_ACCESSORS

    /// The extended data of one application alone, its name (1001) first; null if there is none.
    /// The list belongs to the style and lasts until `edit` is called.
    resbuf* xData(const wchar_t* application) const;

  private:
    const KdDbDimValue& standardTextStyle() const;

    mutable KdDbDimValue m_standardTextStyle;
    mutable std::vector<ResbufChain> m_xData; ///< the lists that were asked for
};
KD_DB_SYMBOL_TABLE(KdDbDimStyleTable, KdDbDimStyleTableRecord)

/// What a dimension, a leader or a tolerance frame has to do with dimension styles.
struct KW_EXPORT DimensionStyleUse
{
    KdDbObjectId style;
    KdDbDimValues overrides; ///< what the entity sets apart from its style

    /// The value that counts: the entity's own, else that of the style, else the initial one.
    const KdDbDimValue& variable(KdDbDimVar variable) const;
};

/// Inside the class of an entity whose members hold a `DimensionStyleUse dimension`: adds
/// `dimensionStyle()` and the accessors of all variables, which give the values that count.
#define KD_DB_USES_DIMENSION_STYLE                                                                 \
    KdDbObjectId dimensionStyle() const                                                            \
    {                                                                                              \
        return data().dimension.style;                                                             \
    }                                                                                              \
    const KdDbDimValue& dimensionVariable(KdDbDimVar variable) const                               \
    {                                                                                              \
        return data().dimension.variable(variable);                                                \
    }                                                                                              \
    KD_DB_DIM_ACCESSORS

/// Helpers on the arrowheads of dimensions.
struct KW_EXPORT KdDmUtil
{
    /// The name of the arrowhead that a block draws: without the underscore for a standard one,
    /// "CLOSEDFILLED" for the null id, the block's own name for any other. Empty if the block is
    /// not to be had.
    static KdString arrowName(KdDbObjectId block);
    /// True if a standard arrowhead has that name, without the underscore, in any case.
    static bool isStandardArrow(const KdString& name);
};
