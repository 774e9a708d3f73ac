#include "dimension_variables_reader.h"

#include <optional>
#include <string>

namespace dxf {
namespace {

constexpr int kFirstWithHandles = 1015; ///< versions before name arrows, and know other units
constexpr int kOldUnit = 270;
constexpr int kOldFit = 287;

struct NamedArrow
{
    int code;
    KdDbDimVar variable;
};

// Up to R14 arrows stand by name under codes of their own.
constexpr NamedArrow kNamedArrows[] = {
    {5, KdDbDimVar::dimblk}, {6, KdDbDimVar::dimblk1}, {7, KdDbDimVar::dimblk2}};

std::optional<KdDbDimVar> namedArrowOfCode(int code)
{
    for (const NamedArrow& row : kNamedArrows)
        if (row.code == code)
            return row.variable;
    return std::nullopt;
}

/// The block that draws an arrow; the null id, which is the usual arrow, for a name that is empty
/// or unknown. Names of standard arrows may lack their underscore.
KdDbObjectId arrowBlock(KdDbDatabase& database, const KdString& name)
{
    const auto& blocks = database.table<KdDbBlockTable>();
    KdDbObjectId block;
    if (!name.isEmpty() && blocks.getIdAt(name.kwszPtr(), block) != eOk)
        blocks.getIdAt((KdString(L"_") + name).kwszPtr(), block);
    return block;
}

/// One choice of units stands for what later are two. A number that means none counts for nothing,
/// as it does in the header.
void setOldUnit(KdDbDimValues& values, std::int32_t unit)
{
    constexpr std::int32_t kUnstackedFractions = 2;
    constexpr std::int32_t kOfTheDesktop = 8;
    if (values.has(KdDbDimVar::dimlunit)) // written by a later version, which knows better
        return;
    if (unit < 1 || unit > kOfTheDesktop)
        return;
    if (unit == 6 || unit == 7) {
        values.set(KdDbDimVar::dimlunit, unit - 2);
        values.set(KdDbDimVar::dimfrac, kUnstackedFractions);
    } else {
        values.set(KdDbDimVar::dimlunit, unit == kOfTheDesktop ? 6 : unit);
    }
}

/// One choice of the fit stands for two as well: 4 adds a leader, 5 moves the text freely.
void setOldFit(KdDbDimValues& values, std::int32_t fit)
{
    constexpr std::int32_t kBestFit = 3;
    constexpr std::int32_t kFree = 5;
    if (values.has(KdDbDimVar::dimatfit) || fit < 0 || fit > kFree)
        return;
    values.set(KdDbDimVar::dimatfit, fit > kBestFit ? kBestFit : fit);
    if (fit > kBestFit)
        values.set(KdDbDimVar::dimtmove, fit - kBestFit);
}

bool isOld(RecordReader& reader)
{
    return reader.source().version < kFirstWithHandles;
}

bool takeOldVariable(RecordReader& reader, KdDbDimValues& values)
{
    if (!isOld(reader))
        return false;
    if (const auto arrow = namedArrowOfCode(reader.code()))
        values.set(*arrow, arrowBlock(reader.source().database, reader.text()));
    else if (reader.code() == kOldUnit)
        setOldUnit(values, reader.integer());
    else if (reader.code() == kOldFit)
        setOldFit(values, reader.integer());
    else
        return false;
    return true;
}

/// Some programs write the name of the style in place of its handle.
KdDbObjectId textStyle(RecordReader& reader)
{
    KdDbHandle handle = 0;
    if (parseHandle(reader.group().text, handle))
        return reader.reference();
    KdDbObjectId id;
    reader.source().database.table<KdDbTextStyleTable>().getIdAt(reader.text().kwszPtr(), id);
    return id;
}

KdDbDimValue readValue(RecordReader& reader, KdDbDimKind kind)
{
    switch (kind) {
    case KdDbDimKind::Real:
        return reader.real();
    case KdDbDimKind::Angle:
        return reader.angle();
    case KdDbDimKind::Color:
        return kddbDimColor(reader.integer());
    case KdDbDimKind::Text:
        return reader.text();
    case KdDbDimKind::TextStyle:
        return textStyle(reader);
    case KdDbDimKind::Block:
    case KdDbDimKind::Linetype:
        return reader.reference();
    default:
        return std::int32_t{reader.integer()};
    }
}

// Extended data.

std::optional<double> numberIn(const resbuf& record)
{
    if (record.restype >= 1040 && record.restype <= 1042)
        return record.resval.rreal;
    if (record.restype == 1070)
        return record.resval.rint;
    if (record.restype == 1071)
        return record.resval.rlong;
    return std::nullopt;
}

KdDbObjectId objectOfHandle(KdDbDatabase& database, const wchar_t* text)
{
    std::string digits;
    for (; text && *text; ++text)
        digits.push_back(*text < 0x80 ? static_cast<char>(*text) : '?');
    KdDbHandle handle = 0;
    KdDbObjectId id;
    if (parseHandle(digits, handle) && handle != 0)
        database.getObjectId(id, handle);
    return id;
}

/// The value that a record of extended data holds, if it is of a form that fits the kind.
std::optional<KdDbDimValue> valueIn(KdDbDatabase& database, const resbuf& record, KdDbDimKind kind)
{
    constexpr short kText = 1000;
    constexpr short kHandle = 1005;
    if (kind == KdDbDimKind::Text)
        return record.restype == kText
                   ? std::optional<KdDbDimValue>(KdString(record.resval.rstring))
                   : std::nullopt;
    if (kind >= KdDbDimKind::TextStyle)
        return record.restype == kHandle
                   ? std::optional<KdDbDimValue>(objectOfHandle(database, record.resval.rstring))
                   : std::nullopt;
    const std::optional<double> number = numberIn(record);
    if (!number)
        return std::nullopt;
    if (kind == KdDbDimKind::Real || kind == KdDbDimKind::Angle)
        return *number;
    if (!(*number >= INT32_MIN && *number <= INT32_MAX))
        return std::nullopt;
    const auto integer = static_cast<std::int32_t>(*number);
    return kind == KdDbDimKind::Color ? kddbDimColor(integer) : KdDbDimValue(integer);
}

/// One pair of the list of overrides.
void takeOverride(RecordReader& reader, int code, const resbuf& value, KdDbDimValues& values)
{
    KdDbDatabase& database = reader.source().database;
    if (const auto arrow = namedArrowOfCode(code); arrow && value.restype == 1000) {
        values.set(*arrow, arrowBlock(database, value.resval.rstring));
    } else if (const auto variable = kddbDimVariableOfCode(code)) {
        auto taken = valueIn(database, value, kddbDimVariable(*variable).kind);
        const bool isNoStyle =
            *variable == KdDbDimVar::dimtxsty && taken == KdDbDimValue(KdDbObjectId());
        if (taken && !isNoStyle)
            values.set(*variable, std::move(*taken));
    } else if (isOld(reader) && value.restype == 1070) {
        if (code == kOldUnit)
            setOldUnit(values, value.resval.rint);
        else if (code == kOldFit)
            setOldFit(values, value.resval.rint);
    }
}

/// The list may stand among other things that the application keeps.
void takeOverrides(RecordReader& reader, KdDbDimValues& values)
{
    const resbuf* end = nullptr;
    const resbuf* record = reader.object().extendedData(L"ACAD", end);
    while (record != end && !(record->restype == 1000 &&
                              KdString(record->resval.rstring).compareNoCase(L"DSTYLE") == 0))
        record = record->rbnext;
    if (record != end)
        record = record->rbnext;
    if (record != end && record->restype == 1002) // the opening brace
        record = record->rbnext;
    while (record != end && record->restype == 1070 && record->rbnext != end) {
        takeOverride(reader, record->resval.rint, *record->rbnext, values);
        record = record->rbnext->rbnext;
    }
}

struct ApplicationVariable
{
    const wchar_t* application;
    short key;
    KdDbDimVar variable;
};

// clang-format off
constexpr ApplicationVariable kApplicationVariables[] = {
    {L"ACAD_DSTYLE_DIM_LINETYPE",              380, KdDbDimVar::dimltype},
    {L"ACAD_DSTYLE_DIM_EXT1_LINETYPE",         381, KdDbDimVar::dimltex1},
    {L"ACAD_DSTYLE_DIM_EXT2_LINETYPE",         382, KdDbDimVar::dimltex2},
    {L"ACAD_DSTYLE_DIMEXT_LENGTH",             378, KdDbDimVar::dimfxl},
    {L"ACAD_DSTYLE_DIMJOGGED_JOGANGLE_SYMBOL", 384, KdDbDimVar::dimjogang},
    {L"ACAD_DSTYLE_DIMTEXT_FILL",              376, KdDbDimVar::dimtfill},
    {L"ACAD_DSTYLE_DIMTEXT_FILL",              377, KdDbDimVar::dimtfillclr},
};
// clang-format on

/// A colour among bytes: its word, lowest byte first, behind a head.
std::optional<KdDbDimValue> colorIn(const resbuf& record)
{
    constexpr short kChunk = 1004;
    constexpr int kHead = 8;
    constexpr int kWord = 4;
    if (record.restype != kChunk || record.resval.rbinary.clen < kHead + kWord)
        return std::nullopt;
    std::uint32_t word = 0;
    for (int i = kWord - 1; i >= 0; --i)
        word = word << 8 | static_cast<unsigned char>(record.resval.rbinary.buf[kHead + i]);
    return static_cast<std::int32_t>(word);
}

/// The record behind a key in the pairs of an application's extended data; null if there is none.
const resbuf* valueOfKey(const KdDbObject& object, const wchar_t* application, short key)
{
    const resbuf* end = nullptr;
    const resbuf* record = object.extendedData(application, end);
    while (record != end && record->rbnext != end) {
        if (record->restype == 1070 && record->resval.rint == key)
            return record->rbnext;
        record = record->rbnext->rbnext;
    }
    return nullptr;
}

/// The standard style, made where it is missing; the null id if that is left to another source.
KdDbObjectId standardStyle(DrawingSource& source)
{
    KdDbObjectId style;
    const auto& styles = source.database.table<KdDbDimStyleTable>();
    if (styles.getIdAt(L"Standard", style) == eOk || source.leave())
        return style;
    return source.database.findOrAddRecord<KdDbDimStyleTable>(L"Standard");
}

} // namespace

bool takeDimensionVariable(RecordReader& reader, KdDbDimValues& values)
{
    if (takeOldVariable(reader, values))
        return true;
    const auto variable = kddbDimVariableOfCode(reader.code());
    if (variable)
        values.set(*variable, readValue(reader, kddbDimVariable(*variable).kind));
    return variable.has_value();
}

void takeApplicationVariables(RecordReader& reader, KdDbDimValues& values)
{
    for (const ApplicationVariable& row : kApplicationVariables) {
        const resbuf* value = valueOfKey(reader.object(), row.application, row.key);
        if (!value)
            continue;
        auto taken = colorIn(*value);
        if (!taken)
            taken = valueIn(reader.source().database, *value, kddbDimVariable(row.variable).kind);
        if (taken)
            values.set(row.variable, std::move(*taken));
    }
}

bool takeDimensionStyle(RecordReader& reader, DimensionStyleUse& use)
{
    if (reader.code() != 3)
        return false;
    use.style = reader.source().dimensionStyle(reader.group());
    return true;
}

void finishDimensionStyleUse(RecordReader& reader, DimensionStyleUse& use)
{
    if (use.style.isNull())
        use.style = standardStyle(reader.source());
    takeApplicationVariables(reader, use.overrides);
    takeOverrides(reader, use.overrides);
}

} // namespace dxf
