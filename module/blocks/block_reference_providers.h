/// Providers of block references.
#pragma once

#include <map>
#include <string_view>

#include <entities/all.h>
#include <plugin/entity_pe.h>

#include <providers/table_provider.h>

/// One class stands for four kinds of thing: plain references, associative arrays, centre marks and
/// centre lines, which are told apart before anything is listed. Attributes and dynamic properties
/// are answered under keys that are never listed. Unlike other providers this one keeps something:
/// the keys of arrays and centre objects, in the language of the first question.
class KdDbBlockReference_Extension : public KdDbEntity_Extension
{
  public:
    /// Reads one value into the record. What it returns is of no account.
    using Getter = int (KdDbBlockReference_Extension::*)(KdDbBlockReference*, ResBuf*&);
    using Getters = std::map<KdString, Getter>;

    /// Nothing at all for a null entity or one that is no block reference.
    int PropertyCount(const KdDbEntity* entity, KdArray<KdString>& names,
                      KdArray<bool>& flags) override;
    int PropertyValueGet(const KdDbEntity* entity, KdString name, ResBuf*& result,
                         bool asDisplayText, bool withChoices) override;
    using SaysRows = KdDbBlockReference_Extension;
    LastingRow lastingRow(const KdRxClass& rxClass, const KdString& key);

    /// Fills both maps, unless they are filled.
    void initFuncsMap();

    // Each appends the keys of one kind of reference behind the General ones.
    void blockReferencePropertyCount(const KdDbBlockReference* reference, KdArray<KdString>& names,
                                     KdArray<bool>& flags);
    void assocArrayRectPropertyCount(const KdDbBlockReference* reference, KdArray<KdString>& names,
                                     KdArray<bool>& flags);
    void assocArrayPolarPropertyCount(const KdDbBlockReference* reference, KdArray<KdString>& names,
                                      KdArray<bool>& flags);
    void assocArrayPathPropertyCount(const KdDbBlockReference* reference, KdArray<KdString>& names,
                                     KdArray<bool>& flags);
    void centerMarkPropertyCount(const KdDbBlockReference* reference, KdArray<KdString>& names,
                                 KdArray<bool>& flags);
    void centerlinePropertyCount(const KdDbBlockReference* reference, KdArray<KdString>& names,
                                 KdArray<bool>& flags);

    // Keys that are known only at run time. Each gives true if it found what was asked for.

    /// The text of the attribute with that tag, and always the tag record behind it.
    bool fillAttributesInformation(KdDbBlockReference* reference, ResBuf*& result,
                                   std::wstring_view tag);
    /// The value of the dynamic property of that name, and always its allowed texts behind it.
    bool fillDinamicBlocInformation(KdDbBlockReference* reference, ResBuf*& result,
                                    std::wstring_view name);
    bool fillSmartBlockInformation(KdDbBlockReference* reference, ResBuf*& result,
                                   std::wstring_view name);

    // Associative arrays. What an array lacks reads as 0 unless a getter says otherwise.

    /// Reads a quantity of the array. The host's status, or 0 with `value` untouched for a
    /// reference that is no array.
    int getAssocArrayVal(KdDbBlockReference* reference, const KdString& name,
                         KdDbEvalVariant& value);
    /// Both in the user coordinate system; the origin where there is no such point.
    void getAssocArrayBasePoint(KdDbBlockReference* reference, KdGePoint3d& point);
    void getAssocArrayCenterPoint(KdDbBlockReference* reference, KdGePoint3d& point);

    int getAssocArrayBasePointX(KdDbBlockReference* reference, ResBuf*& result);
    int getAssocArrayBasePointY(KdDbBlockReference* reference, ResBuf*& result);
    int getAssocArrayBasePointZ(KdDbBlockReference* reference, ResBuf*& result);
    int getAssocArrayCenterPointX(KdDbBlockReference* reference, ResBuf*& result);
    int getAssocArrayCenterPointY(KdDbBlockReference* reference, ResBuf*& result);
    int getAssocArrayCenterPointZ(KdDbBlockReference* reference, ResBuf*& result);
    int getAssocArrayColumns(KdDbBlockReference* reference, ResBuf*& result);
    int getAssocArrayColumnsSpace(KdDbBlockReference* reference, ResBuf*& result);
    int getAssocArrayRadius(KdDbBlockReference* reference, ResBuf*& result);
    int getAssocArrayDirection(KdDbBlockReference* reference, ResBuf*& result);
    int getAssocArrayPathLength(KdDbBlockReference* reference, ResBuf*& result);
    int getAssocArrayMethod(KdDbBlockReference* reference, ResBuf*& result);
    int getAssocArrayFillWholePath(KdDbBlockReference* reference, ResBuf*& result);
    int getAssocArrayItemCount(KdDbBlockReference* reference, ResBuf*& result);
    int getAssocArrayItemSpaceAngle(KdDbBlockReference* reference, ResBuf*& result);
    int getAssocArrayFillAngle(KdDbBlockReference* reference, ResBuf*& result);
    int getAssocArrayItemSpace(KdDbBlockReference* reference, ResBuf*& result);
    int getAssocArrayStartPointOffset(KdDbBlockReference* reference, ResBuf*& result);
    int getAssocArrayRows(KdDbBlockReference* reference, ResBuf*& result);
    int getAssocArrayRowsSpace(KdDbBlockReference* reference, ResBuf*& result);
    int getAssocArrayRowEleDelta(KdDbBlockReference* reference, ResBuf*& result);
    int getAssocArrayLevel(KdDbBlockReference* reference, ResBuf*& result);
    int getAssocArrayInterlayerSpace(KdDbBlockReference* reference, ResBuf*& result);
    int getAssocArrayShaftangle(KdDbBlockReference* reference, ResBuf*& result);
    int getAssocArrayAlignItem(KdDbBlockReference* reference, ResBuf*& result);

    // Centre objects. A reference of another kind reads as the neutral value.

    int getCenterObjectAssociation(KdDbBlockReference* reference, ResBuf*& result);
    int getCenterLineStartPoint(KdDbBlockReference* reference, ResBuf*& result);
    int getCenterLineEndPoint(KdDbBlockReference* reference, ResBuf*& result);
    int getCenterLineStartExtension(KdDbBlockReference* reference, ResBuf*& result);
    int getCenterLineEndExtension(KdDbBlockReference* reference, ResBuf*& result);
    int getCenterMarkCrossHairLength(KdDbBlockReference* reference, ResBuf*& result);
    int getCenterMarkCrossHairGap(KdDbBlockReference* reference, ResBuf*& result);
    int getCenterMarkHorizontalStartExtension(KdDbBlockReference* reference, ResBuf*& result);
    int getCenterMarkHorizontalEndExtension(KdDbBlockReference* reference, ResBuf*& result);
    int getCenterMarkVerticalStartExtension(KdDbBlockReference* reference, ResBuf*& result);
    int getCenterMarkVerticalEndExtension(KdDbBlockReference* reference, ResBuf*& result);
    int getCenterMarkExtensionLinesVisibility(KdDbBlockReference* reference, ResBuf*& result);
    int getCenterMarkRotation(KdDbBlockReference* reference, ResBuf*& result);

  private:
    static void fillArrayGetters(Getters& getters);
    static void fillCenterGetters(Getters& getters);
    bool answerOpenKey(KdDbBlockReference* reference, ResBuf*& result, std::wstring_view name);

    Getters m_arrayGetters;
    Getters m_centerGetters;
};

/// Adds the grid of a multiple insert to whatever its reference lists.
class KdDbMInsertBlock_Extension : public KdDbBlockReference_Extension
{
  public:
    /// Any reference has the grid listed behind its own keys; nothing else has anything listed.
    int PropertyCount(const KdDbEntity* entity, KdArray<KdString>& names,
                      KdArray<bool>& flags) override;
    /// Answers for multiple inserts alone.
    int PropertyValueGet(const KdDbEntity* entity, KdString name, ResBuf*& result,
                         bool asDisplayText, bool withChoices) override;
};
