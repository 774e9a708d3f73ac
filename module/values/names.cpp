#include <values/names.h>

#include <charconv>
#include <cwchar>
#include <iterator>
#include <string>

#include <editor/system_variables.h>
#include <entities/block_reference.h>
#include <plugin/res_buf.h>
#include <values/resource_string.h>
#include <values/table_walk.h>
#include <values/text_utilities.h>

namespace {

struct Spelling
{
    int id = 0; ///< 0: none
    const wchar_t* defaultText = nullptr;
};

struct ColorWord
{
    short number;
    const wchar_t* literal;
    Spelling spellings[3];
};

// clang-format off
constexpr ColorWord kColorWords[] = {
    {0,   L"BYBLOCK", {{35492, L"byb"}, {34341, L"BYBlock"}}},
    {1,   L"RED",     {{35505, L"red"}, {34492, L"Red"},     {35506, L"r"}}},
    {2,   L"YELLOW",  {{35511, L"yel"}, {34580, L"Yellow"},  {35512, L"y"}}},
    {3,   L"GREEN",   {{35499, L"gre"}, {34410, L"Green"},   {35500, L"g"}}},
    {4,   L"CYAN",    {{35496, L"cya"}, {34369, L"Cyan"},    {35497, L"c"}}},
    {5,   L"BLUE",    {{35491, L"blu"}, {34339, L"Blue"},    {35494, L"b"}}},
    {6,   L"MAGENTA", {{35503, L"mag"}, {34449, L"Magenta"}, {35504, L"m"}}},
    {7,   L"WHITE",   {{35508, L"whi"}, {34571, L"White"},   {35509, L"w"}}},
    {256, L"BYLAYER", {{35493, L"byl"}, {34342, L"BYLayer"}}},
};
// clang-format on

constexpr short kWhite = 7;
constexpr unsigned short kHighestColor = 256;

bool means(const ColorWord& word, const wchar_t* text)
{
    if (strisameW(text, word.literal))
        return true;
    for (const Spelling& spelling : word.spellings)
        if (spelling.id != 0 &&
            strisameW(text, __ResourceString(spelling.id, spelling.defaultText)))
            return true;
    return false;
}

/// Lengths in the form that texts of lineweights take.
struct LengthForm
{
    double factor; ///< from 1/100 mm
    int decimals;
    const wchar_t* unit;
};
constexpr LengthForm kInches{0.0003937007874015748, 3, L"\""};
constexpr LengthForm kMillimetres{0.01, 2, L" mm"};

LengthForm currentLengthForm()
{
    resbuf units{};
    if (kdedGetVar(L"LWUNITS", &units) == RTNORM && units.resval.rint == 0)
        return kInches;
    return kMillimetres;
}

/// With a decimal point in every locale, as in the fixed list of lineweights.
KdString formatLength(int weight, const LengthForm& form)
{
    char digits[64];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), weight * form.factor,
                                   std::chars_format::fixed, form.decimals);
    return KdString(std::wstring(digits, end.ptr) + form.unit);
}

} // namespace

short Color2Number(const wchar_t* text)
{
    if (!text || *text == L'\0')
        return kWhite;
    for (const ColorWord& word : kColorWords)
        if (means(word, text))
            return word.number;
    const auto number = static_cast<unsigned short>(std::wcstol(text, nullptr, 10));
    return number <= kHighestColor ? static_cast<short>(number) : kWhite;
}

int getLineWeightName(int weight, KdString& name)
{
    switch (weight) {
    case -1:
        name = L"ByLayer";
        break;
    case -2:
        name = L"ByBlock";
        break;
    case -3:
        name = L"Default";
        break;
    default:
        name = formatLength(weight, currentLengthForm());
        break;
    }
    return eOk;
}

int getDefaultLineTypeName(KdString& name)
{
    KdDbDatabase* const database = kddbHostApplicationServices()->workingDatabase();
    if (!database)
        return kNoDatabase;
    const auto takeFirst = [&](const KdDbSymbolTableRecord& record) {
        record.getName(name);
        return Walk::Stop;
    };
    const bool walked = walkRecords<KdDbLinetypeTable>(database, Dependents::Skip, takeFirst);
    return walked ? eOk : kObjectNotUsable;
}

KdDbObjectId sourceBlockOf(const KdDbBlockReference& reference)
{
    // The later mechanism overrides the earlier one.
    if (const KdDbObjectId original = kddbGetSmartBlkOriginalBtrId(reference); !original.isNull())
        return original;
    if (const KdDbObjectId original = kddbGetEnhancedBlkOriginalBtrId(reference);
        !original.isNull())
        return original;
    return reference.blockTableRecord();
}

int getBlockReferenceName(KdDbEntity* entity, ResBuf*& result)
{
    if (!entity || !entity->isKindOf(KdDbBlockReference::desc()))
        return kObjectNotUsable;
    result->setRestype(ResBuf::kString);
    const auto& reference = static_cast<const KdDbBlockReference&>(*entity);
    const OpenForRead<KdDbBlockTableRecord> block(sourceBlockOf(reference));
    if (!block)
        return kObjectNotUsable;
    KdString name;
    block->getName(name);
    result->setString(name);
    return eOk;
}
