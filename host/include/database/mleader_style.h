/// Styles of multileaders.
#pragma once

#include <database/color.h>
#include <database/object.h>

struct KW_EXPORT MLeaderStyleMembers : ObjectMembers
{
    KdString description;
    KdString defaultText;
    KdDbObjectId linetype;
    KdDbObjectId arrowSymbol; ///< null: filled and closed
    KdDbObjectId textStyle;
    KdDbObjectId block;
    std::uint32_t lineColor = 0xC1000000; ///< the word of a `KdCmColor`, as the next
    std::uint32_t textColor = 0xC1000000;
    double landingGap = 0.09;
    double doglegLength = 0.36;
    double arrowSize = 0.18;
    double textHeight = 0.18;
    double scale = 1.0;
    std::int16_t content = 2;  ///< 0 none, 1 block, 2 text, 3 tolerance
    std::int16_t lineType = 1; ///< 0 none, 1 straight, 2 spline
    std::int16_t lineWeight = -2;
    std::int16_t leftAttachment = 1;
    std::int16_t rightAttachment = 1;
    std::int16_t textAngleKind = 1;
    std::int16_t textAlignment = 0;
    bool landing = true;
    bool dogleg = true;
    bool textFrame = false;
    bool annotative = false;
};

/// The style that a multileader begins with. A drawing keeps its styles in the dictionary
/// "ACAD_MLEADERSTYLE" of the named objects.
class KW_EXPORT KdDbMLeaderStyle : public KdDbObject
{
    KD_RX_DECLARE(KdDbMLeaderStyle)
    KD_DB_MEMBERS(MLeaderStyleMembers)

    /// The key in the dictionary of styles; empty if the style stands in none.
    KdString getName() const;
    bool isAnnotative() const override { return data().annotative; }

    const KdString& description() const { return data().description; }
    const KdString& defaultText() const { return data().defaultText; }
    KdDbObjectId leaderLineTypeId() const { return data().linetype; }
    KdDbObjectId arrowSymbolId() const { return data().arrowSymbol; }
    KdDbObjectId textStyleId() const { return data().textStyle; }
    KdDbObjectId blockId() const { return data().block; }
    KdCmColor leaderLineColor() const { return KdCmColor(data().lineColor); }
    KdCmColor textColor() const { return KdCmColor(data().textColor); }
    double landingGap() const { return data().landingGap; }
    double doglegLength() const { return data().doglegLength; }
    double arrowSize() const { return data().arrowSize; }
    double textHeight() const { return data().textHeight; }
    double scale() const { return data().scale; }
    int contentType() const { return data().content; }
    int leaderLineType() const { return data().lineType; }
    /// 1/100 mm, or -1 by layer, -2 by block, -3 default.
    int leaderLineWeight() const { return data().lineWeight; }
    int leftAttachment() const { return data().leftAttachment; }
    int rightAttachment() const { return data().rightAttachment; }
    int textAngleType() const { return data().textAngleKind; }
    int textAlignmentType() const { return data().textAlignment; }
    bool enableLanding() const { return data().landing; }
    bool enableDogleg() const { return data().dogleg; }
    bool enableFrameText() const { return data().textFrame; }
};
