#include <providers/name_rows.h>
#include <providers/text_providers.h>
#include <providers/text_values.h>

namespace {

constexpr auto kJustifyNames = justifyNames(77694);

KdString justifyName(const KdDbText& text)
{
    const int index = justifyIndex(text.horizontalMode(), text.verticalMode());
    return index < 0 ? KdString() : kJustifyNames[static_cast<std::size_t>(index)].text();
}

KdString styleName(const KdDbText& text)
{
    return textStyleName(text.textStyle());
}

/// The alignment point places such a text, and its position follows.
bool isAtPosition(const KdDbEntity* entity)
{
    const auto& text = static_cast<const KdDbText&>(*entity);
    return text.horizontalMode() == KdDb::kTextLeft && text.verticalMode() == KdDb::kTextBase;
}

/// True unless one end of the base line is a given point.
bool isAlignedByOtherPoint(const KdDbText& text)
{
    const int mode = text.horizontalMode();
    const bool hasGivenEnd =
        mode == KdDb::kTextLeft || mode == KdDb::kTextAligned || mode == KdDb::kTextFit;
    return text.verticalMode() != KdDb::kTextBase || !hasGivenEnd;
}

// clang-format off
constexpr PropertyRow kRows[] = {
    // key: id, default text              read-only     kind              value                            choices, listed
    {{77065, L"\tGeneral:Thickness"},     editable,     ResBuf::kReal,    value<&KdDbText::thickness>},
    {{77066, L"Text:Contents"},           editable,     ResBuf::kString,  value<&KdDbText::textString>,    tag<0>},
    {{77067, L"Text:Height"},             editable,     ResBuf::kReal,    value<&KdDbText::height>},
    {{77068, L"Text:Rotation"},           editable,     ResBuf::kAngle,   value<&KdDbText::rotation>},
    {{77073, L"Text:Style"},              editable,     ResBuf::kString,  value<&styleName>,               textStyleChoices},
    {{78152, L"Text:Annotative"},         derived,      ResBuf::kBool,    value<&KdDbObject::isAnnotative>},
    {{77074, L"Text:Justify"},            editable,     ResBuf::kString,  value<&justifyName>,             namesOf<kJustifyNames>},
    {{77075, L"Text:Width factor"},       editable,     ResBuf::kReal,    value<&KdDbText::widthFactor>},
    {{77076, L"Text:Obliquing"},          editable,     ResBuf::kAngle,   value<&KdDbText::oblique>},
    {{77069, L"Geometry:Position"},       isAtPosition, ResBuf::kPoint3d, value<&KdDbText::position>},
    {{76638, L"Geometry:Normal"},         derived,      ResBuf::kPoint3d, value<&KdDbText::normal>},
    {{77080, L"Misc:Upside down"},        editable,     ResBuf::kBool,    value<&KdDbText::isMirroredInY>},
    {{77081, L"Misc:Backward"},           editable,     ResBuf::kBool,    value<&KdDbText::isMirroredInX>},
    // never listed, but answered: as intended
    {{77077, L"Text:Text alignment"},     editable,     ResBuf::kPoint3d, value<&KdDbText::alignmentPoint>, noChoices, never},
};
// clang-format on

constexpr std::size_t kRowsUpToPosition = 10;
static_assert(kRows[kRowsUpToPosition - 1].readOnly == isAtPosition);

} // namespace

std::span<const PropertyRow> KdDbText_Extension::rows()
{
    return kRows;
}

int KdDbText_Extension::PropertyCount(const KdDbEntity* entity, KdArray<KdString>& names,
                                      KdArray<bool>& flags)
{
    KdDbEntity_Extension::PropertyCount(entity, names, flags);
    if (!entity || !entity->isKindOf(KdDbText::desc()))
        return 0;
    listRows(rows().first(kRowsUpToPosition), entity, names, flags);
    flags.append(isAlignedByOtherPoint(static_cast<const KdDbText&>(*entity)));
    listRows(rows().subspan(kRowsUpToPosition), entity, names, flags);
    return 0;
}

void KdDbText_Extension::fillJustifyNameByTextEntity(KdDbText* text, CStdStr<wchar_t>* name)
{
    if (text && name)
        *name = CStdStr<wchar_t>(justifyName(*text).view());
}
