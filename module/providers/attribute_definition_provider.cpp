#include <providers/name_rows.h>
#include <providers/text_providers.h>
#include <providers/text_values.h>

namespace {

constexpr auto kJustifyNames = justifyNames(77794);

KdString justifyName(const KdDbAttributeDefinition& text)
{
    const int horizontal = text.horizontalMode();
    const bool isKnown = horizontal >= KdDb::kTextLeft && horizontal <= KdDb::kTextFit;
    const int index = justifyIndex(isKnown ? horizontal : KdDb::kTextLeft, text.verticalMode());
    return index < 0 ? KdString() : kJustifyNames[static_cast<std::size_t>(index)].text();
}

KdString styleName(const KdDbAttributeDefinition& text)
{
    return textStyleName(text.textStyle());
}

/// Of several lines with their format codes.
KdString valueText(const KdDbAttributeDefinition& text)
{
    const KdDbMText* lines = text.getMTextAttributeDefinitionConst();
    return lines ? contentsOf(*lines) : text.textString();
}

using Definition = KdDbAttributeDefinition;

// clang-format off
constexpr PropertyRow kRows[] = {
    // key: id, default text           read-only  kind              value                                     choices
    {{77417, L"Text:Tag"},             editable,  ResBuf::kString,  value<&Definition::tag>,                  tag<0>},
    {{78152, L"Text:Annotative"},      derived,   ResBuf::kBool,    value<&KdDbObject::isAnnotative>},
    {{77418, L"Text:Prompt"},          editable,  ResBuf::kString,  value<&Definition::prompt>,               tag<0>},
    {{77419, L"Text:Value"},           editable,  ResBuf::kString,  value<&valueText>,                        tag<0>},
    {{77420, L"Text:Style"},           editable,  ResBuf::kString,  value<&styleName>,                        textStyleChoices},
    {{77421, L"Text:Justify"},         editable,  ResBuf::kString,  value<&justifyName>,                      namesOf<kJustifyNames>},
    {{77422, L"Text:Height"},          editable,  ResBuf::kReal,    value<&KdDbText::height>},
    {{77423, L"Text:Rotation"},        editable,  ResBuf::kAngle,   value<&KdDbText::rotation>},
    {{77424, L"Text:Width factor"},    editable,  ResBuf::kReal,    value<&KdDbText::widthFactor>},
    {{77425, L"Text:Obliquing"},       editable,  ResBuf::kAngle,   value<&KdDbText::oblique>},
    {{77426, L"Text:Text alignment"},  editable,  ResBuf::kPoint3d, value<&KdDbText::alignmentPoint>},
    {{77430, L"Misc:Upside down"},     editable,  ResBuf::kBool,    value<&KdDbText::isMirroredInY>},
    {{77431, L"Misc:Backward"},        editable,  ResBuf::kBool,    value<&KdDbText::isMirroredInX>},
    {{77432, L"Misc:Invisible"},       editable,  ResBuf::kBool,    value<&Definition::isInvisible>},
    {{77433, L"Misc:Constant"},        editable,  ResBuf::kBool,    value<&Definition::isConstant>},
    {{77434, L"Misc:Verify"},          editable,  ResBuf::kBool,    value<&Definition::isVerifiable>},
    {{77435, L"Misc:Preset"},          editable,  ResBuf::kBool,    value<&Definition::isPreset>},
    {{77435, L"Misc:Preset"},          editable,  ResBuf::kBool,    value<&Definition::isPreset>}, // listed twice: as intended
    {{77428, L"Misc:Multiple lines"},  editable,  ResBuf::kBool,    value<&Definition::isMTextAttributeDefinition>},
    {{77436, L"Misc:Lock position"},   editable,  ResBuf::kBool,    value<&Definition::lockPositionInBlock>},
};
// clang-format on

} // namespace

std::span<const PropertyRow> KdDbAttributeDefinition_Extension::rows()
{
    return kRows;
}

void KdDbAttributeDefinition_Extension::fillJustifyNameByTextEntity(KdDbAttributeDefinition* text,
                                                                    KdString* name)
{
    if (text && name)
        *name = justifyName(*text);
}
