#include <providers/name_rows.h>
#include <providers/text_providers.h>
#include <providers/text_values.h>

namespace {

constexpr NameRow kAttachments[] = {
    {KdDb::kTopLeft, {77709, L"Top left"}},
    {KdDb::kTopCenter, {77710, L"Top center"}},
    {KdDb::kTopRight, {77711, L"Top right"}},
    {KdDb::kMiddleLeft, {77712, L"Middle left"}},
    {KdDb::kMiddleCenter, {77713, L"Middle center"}},
    {KdDb::kMiddleRight, {77714, L"Middle right"}},
    {KdDb::kBottomLeft, {77715, L"Bottom left"}},
    {KdDb::kBottomCenter, {77716, L"Bottom center"}},
    {KdDb::kBottomRight, {77717, L"Bottom right"}},
};

KdString styleName(const KdDbMText& text)
{
    return textStyleName(text.textStyle());
}

KdCmColor fillColor(const KdDbMText& text)
{
    KdCmColor color;
    text.getBackgroundFillColor(color);
    return color;
}

bool isFilled(const KdDbMText& text)
{
    return text.backgroundFillOn();
}

// clang-format off
constexpr PropertyRow kRows[] = {
    // key: id, default text                        read-only  kind              value                                     choices, listed
    {{77082, L"Text:Contents"},                     editable,  ResBuf::kString,  value<contentsOf>,                        tag<1>},
    {{77083, L"Text:Style"},                        editable,  ResBuf::kString,  value<&styleName>,                        textStyleChoices},
    {{78152, L"Text:Annotative"},                   derived,   ResBuf::kBool,    value<&KdDbObject::isAnnotative>},
    {{77084, L"Text:Justify"},                      editable,  ResBuf::kString,  nameOf<&KdDbMText::attachment, kAttachments>, namesOf<kAttachments>},
    {{77085, L"Text:Direction"},                    editable,  ResBuf::kString,  value<directionName>,                     directionChoices},
    {{77086, L"Text:Text height"},                  editable,  ResBuf::kReal,    value<&KdDbMText::textHeight>},
    {{77087, L"Text:Rotation"},                     editable,  ResBuf::kAngle,   value<&KdDbMText::rotation>},
    {{77088, L"Text:Line space factor"},            editable,  ResBuf::kReal,    value<&KdDbMText::lineSpacingFactor>},
    {{77089, L"Text:Line space distance"},          editable,  ResBuf::kReal,    value<lineSpaceDistance>},
    {{77090, L"Text:Line space style"},             editable,  ResBuf::kString,  value<lineSpacingStyleName>,              lineSpacingStyleChoices},
    {{77091, L"Text:Defined width"},                editable,  ResBuf::kReal,    value<&KdDbMText::width>},
    {{77092, L"Text:Defined height"},               editable,  ResBuf::kReal,    value<&KdDbMText::height>},
    {{77094, L"Text:Background mask"},              editable,  ResBuf::kBool,    value<&KdDbMText::backgroundFillOn>},
    // answered whether they are listed or not: as intended
    {{77095, L"Text:Use drawing background color"}, editable,  ResBuf::kBool,    value<&KdDbMText::useBackgroundColorOn>,  noChoices, when<KdDbMText, isFilled>},
    {{77078, L"Text:Fill background color"},        editable,  ResBuf::kColor,   value<fillColor>,                         noChoices, when<KdDbMText, isFilled>},
    {{77093, L"Geometry:Position"},                 editable,  ResBuf::kPoint3d, value<&KdDbMText::location>},
    {{76638, L"Geometry:Normal"},                   derived,   ResBuf::kPoint3d, value<&KdDbMText::normal>},
};
// clang-format on

} // namespace

std::span<const PropertyRow> KdDbMText_Extension::rows()
{
    return kRows;
}

void KdDbMText_Extension::fillJustifyNameByTextEntity(KdDbMText* text, KdString* name)
{
    if (text && name)
        *name = nameIn(kAttachments, text->attachment());
}
