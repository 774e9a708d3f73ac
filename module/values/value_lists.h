/// The lists of values that providers offer beside a value.
#pragma once

#include <vector>

#include <database/object_id.h>
#include <plugin/res_buf.h>
#include <runtime/kd_string.h>

/// One line of a list.
struct listUnit
{
    KdString name;
    int key = 0; ///< a number that belongs to the name; 0 for names from the drawing's tables
};

/// Gathers lists of names from the working drawing. Nothing is kept between two fillers, so that
/// the lists follow the drawing.
class PropListFiller
{
  public:
    std::vector<listUnit> lineWeights;
    std::vector<listUnit> lineTypes;
    std::vector<listUnit> layers;
    std::vector<listUnit> textStyles;

    // Each appends to its own list, in the order of the table. Without a working drawing, or where
    // the table is not to be had, the list stays as it is.
    void fillTextStyle(); ///< text styles, those of external references included
    void fillLayer();     ///< layers, without those of external references
    void fillLineType();  ///< linetypes, without those of external references
    /// The 24 lineweights in millimetres, whatever the drawing's units, "ByLayer", "ByBlock" and
    /// "Default". The keys are 1/100 mm, -1, -2 and -3.
    void fillLineWeight();
};

/// Helpers on lists of values.
class PropListUtil
{
  public:
    /// The key of the first line whose name is exactly `text`; 0 if there is none, or no list.
    static int findByString(std::vector<listUnit>* list, KdString& text);
    /// The name of the first line with that key; empty if there is none, or no list.
    static KdString findByKey(std::vector<listUnit>* list, int key);

    /// Chains a new text record behind `tail`, which itself stays, and returns the new record.
    static ResBuf* addElementToArray(ResBuf*& tail, const KdString& text);
    /// Chains the standard colours, index 1 to 7, behind `tail` and returns the last of them.
    static ResBuf* addStandartColorList(ResBuf* tail);

    /// The linetype of exactly that name in the working drawing, those of external references left
    /// out; the null id if there is none.
    KW_EXPORT static KdDbObjectId findLineTypeIdByName(KdString& name);
};
