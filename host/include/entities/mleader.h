/// Multileaders: any number of leader lines that lead to one text or block.
#pragma once

#include <memory>
#include <vector>

#include <entities/mtext.h>

namespace KdDb {
enum LeaderLineType : std::int16_t
{
    kInvisibleLeader = 0,
    kStraightLeader = 1,
    kSplineLeader = 2,
};
/// A side of the content on which leaders can end.
enum LeaderDirection : std::int16_t
{
    kLeftLeader = 1,
    kRightLeader = 2,
    kTopLeader = 3,
    kBottomLeader = 4,
};
enum MLeaderContent : std::int16_t
{
    kNoContent = 0,
    kBlockContent = 1,
    kMTextContent = 2,
    kToleranceContent = 3,
};
} // namespace KdDb

struct KW_EXPORT MLeaderMembers : EntityMembers
{
    struct Line
    {
        int index = 0;
        std::vector<KdGePoint3d> vertices; ///< WCS, from the arrowhead on, without the landing
    };
    /// Lines that come together and reach the content by one landing.
    struct Branch
    {
        int index = 0;
        KdGePoint3d lastPoint;  ///< WCS: where the landing begins
        KdGeVector3d direction; ///< WCS: of the landing
        double landingLength = 0.0;
        std::vector<Line> lines;
    };
    /// The text of one attribute of a block.
    struct BlockAttribute
    {
        KdDbObjectId definition;
        int index = 0;
        double width = 0.0;
        KdString text;
    };
    struct Block
    {
        KdDbObjectId record;
        KdGePoint3d position; ///< WCS
        KdGeVector3d normal{0.0, 0.0, 1.0};
        KdGeScale3d scale;
        double rotation = 0.0;            ///< radians
        std::uint32_t color = 0xC1000000; ///< the word of a `KdCmColor`
        std::vector<BlockAttribute> attributes;
    };

    std::unique_ptr<MTextData> text; ///< null unless there is one; its height is scaled
    std::unique_ptr<Block> block;    ///< null unless there is one
    std::vector<Branch> branches;
    KdGePoint3d contentBase; ///< WCS
    KdDbObjectId style;
    KdDbObjectId linetype;
    KdDbObjectId arrowSymbol; ///< null: filled and closed
    KdDbObjectId textStyle;
    std::uint32_t lineColor = 0xC1000000; ///< the word of a `KdCmColor`, as the next
    std::uint32_t textColor = 0xC1000000;
    double scale = 1.0;
    // Lengths before scaling:
    double arrowSize = 0.18;
    double doglegLength = 0.36;
    double landingGap = 0.09;
    double textHeight = 0.18;
    std::int16_t lineWeight = -2; ///< 1/100 mm; -1 by layer, -2 by block, -3 default
    KdDb::LeaderLineType lineType = KdDb::kStraightLeader;
    KdDb::MLeaderContent content = KdDb::kNoContent;
    std::int16_t leftAttachment = 0;
    std::int16_t rightAttachment = 0;
    std::int16_t topAttachment = 9;
    std::int16_t bottomAttachment = 9;
    std::int16_t textAlignment = 0;
    std::int16_t textAngleKind = 0;
    bool landing = true;
    bool dogleg = true;
    bool textFrame = false;
    bool annotative = false;
};

class KW_EXPORT KdDbMLeader : public KdDbEntity
{
    KD_RX_DECLARE(KdDbMLeader)
    KD_DB_MEMBERS(MLeaderMembers)

    /// A `KdDbMLeaderStyle`; the null id if it is not there.
    KdDbObjectId mleaderStyle() const { return data().style; }
    /// The factor of all sizes that belong to the annotation.
    double scale() const { return data().scale; }
    bool isAnnotative() const override { return data().annotative; }

    /// A damaged drawing may give numbers beyond the named ones, here and in the next.
    KdDb::LeaderLineType leaderLineType() const { return data().lineType; }
    KdDb::MLeaderContent contentType() const { return data().content; }
    KdCmColor leaderLineColor() const { return KdCmColor(data().lineColor); }
    KdDbObjectId leaderLineTypeId() const { return data().linetype; }
    /// 1/100 mm, or -1 by layer, -2 by block, -3 default.
    int leaderLineWeight() const { return data().lineWeight; }
    /// The block that draws the arrowhead; the null id for the filled closed one.
    KdDbObjectId arrowSymbolId() const { return data().arrowSymbol; }
    /// Lengths before scaling, in drawing units.
    double arrowSize() const { return data().arrowSize; }
    double doglegLength() const { return data().doglegLength; }
    double landingGap() const { return data().landingGap; }
    double textHeight() const { return data().textHeight; }
    bool enableLanding() const { return data().landing; }
    /// True if leaders end in a straight piece along the content.
    bool enableDogleg() const { return data().dogleg; }

    /// A text object with the content as it is drawn, so with its height scaled; null if the
    /// content is no text.
    std::unique_ptr<KdDbMText> mtext() const;
    KdDbObjectId textStyleId() const { return data().textStyle; }
    KdCmColor textColor() const { return KdCmColor(data().textColor); }
    /// 0 left, 1 centre, 2 right.
    int textAlignmentType() const { return data().textAlignment; }
    /// Where leaders that come from a side meet the text: 0 to 8 for left and right, 9 and 10 for
    /// top and bottom.
    int textAttachmentType(KdDb::LeaderDirection side) const;
    bool enableFrameText() const { return data().textFrame; }
    /// The block that is the content; the null id if the content is none.
    KdDbObjectId blockContentId() const;
    /// That block and its attributes, or null; it belongs to the entity.
    const MLeaderMembers::Block* blockContent() const { return data().block.get(); }
    /// The leaders, which belong to the entity.
    const std::vector<MLeaderMembers::Branch>& branches() const { return data().branches; }

    /// The box around the lines and the text.
    KdErrorStatus getGeomExtents(KdGeExtents3d& extents) const override;
};
