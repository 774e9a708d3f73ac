#include <entities/mleader.h>

KD_RX_DEFINE(KdDbMLeader, KdDbEntity, L"AcDbMLeader", L"MULTILEADER")

std::unique_ptr<KdDbMText> KdDbMLeader::mtext() const
{
    if (!data().text)
        return nullptr;
    auto text = std::make_unique<KdDbMText>();
    static_cast<MTextData&>(text->edit()) = *data().text;
    return text;
}

int KdDbMLeader::textAttachmentType(KdDb::LeaderDirection side) const
{
    switch (side) {
    case KdDb::kRightLeader:
        return data().rightAttachment;
    case KdDb::kTopLeader:
        return data().topAttachment;
    case KdDb::kBottomLeader:
        return data().bottomAttachment;
    default:
        return data().leftAttachment;
    }
}

KdDbObjectId KdDbMLeader::blockContentId() const
{
    return data().block ? data().block->record : KdDbObjectId();
}

KdErrorStatus KdDbMLeader::getGeomExtents(KdGeExtents3d& extents) const
{
    KdGeExtents3d box;
    for (const MLeaderMembers::Branch& branch : branches()) {
        if (!branch.lines.empty())
            box.addPoint(branch.lastPoint);
        for (const MLeaderMembers::Line& line : branch.lines) {
            for (const KdGePoint3d& vertex : line.vertices)
                box.addPoint(vertex);
        }
    }
    KdGeExtents3d textBox;
    if (const auto text = mtext(); text && text->getGeomExtents(textBox) == eOk)
        box.addExtents(textBox);
    if (box.isEmpty())
        return eNotApplicable;
    extents = box;
    return eOk;
}
