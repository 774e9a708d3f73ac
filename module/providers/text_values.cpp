#include <providers/text_values.h>

#include <database/tables.h>

#include <providers/name_rows.h>
#include <values/value_lists.h>

namespace {

constexpr NameRow kDirections[] = {
    {KdDb::kFlowByStyle, {77849, L"By Style"}},
    {KdDb::kLeftToRight, {77850, L"Horizontal"}},
    {KdDb::kTopToBottom, {77852, L"Vertical"}},
};

constexpr NameRow kLineSpacingStyles[] = {
    {KdDb::kAtLeast, {77853, L"At least"}},
    {KdDb::kExactly, {77854, L"Exactly"}},
};

} // namespace

KdString textStyleName(KdDbObjectId style)
{
    KdString name;
    if (const OpenForRead<KdDbTextStyleTableRecord> record(style); record)
        record->getName(name);
    return name;
}

bool textStyleChoices(const PropertyRequest& request)
{
    if (!request.withChoices)
        return true;
    PropListFiller lists;
    lists.fillTextStyle();
    ResBuf* tail = &request.head;
    for (const listUnit& style : lists.textStyles)
        tail = PropListUtil::addElementToArray(tail, style.name);
    return true;
}

int justifyIndex(int horizontalMode, int verticalMode)
{
    // Left, centre and right come first along the base line, and last in three rows of three.
    constexpr int kFirstOfVerticalMode[] = {0, 12, 9, 6};
    if (verticalMode < KdDb::kTextBase || verticalMode > KdDb::kTextTop)
        return -1;
    if (horizontalMode >= KdDb::kTextAligned && horizontalMode <= KdDb::kTextFit)
        return horizontalMode;
    if (horizontalMode < KdDb::kTextLeft || horizontalMode > KdDb::kTextFit)
        return -1;
    return kFirstOfVerticalMode[verticalMode] + horizontalMode;
}

KdString contentsOf(const KdDbMText& text)
{
    KdString contents;
    text.contents(contents);
    return contents;
}

KdString directionName(const KdDbMText& text)
{
    const KdString name = nameIn(kDirections, text.flowDirection());
    return name.isEmpty() ? nameIn(kDirections, KdDb::kLeftToRight) : name;
}

bool directionChoices(const PropertyRequest& request)
{
    return namesOf<kDirections>(request);
}

KdString lineSpacingStyleName(const KdDbMText& text)
{
    return nameIn(kLineSpacingStyles, text.lineSpacingStyle());
}

bool lineSpacingStyleChoices(const PropertyRequest& request)
{
    return namesOf<kLineSpacingStyles>(request);
}

double lineSpaceDistance(const KdDbMText& text)
{
    return text.lineSpacingFactor() * text.textHeight() * 1.6666666666666667;
}
