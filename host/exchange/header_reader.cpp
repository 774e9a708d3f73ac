#include "header_reader.h"

#include <algorithm>
#include <limits>
#include <numbers>
#include <span>
#include <utility>
#include <vector>

#include "group_values.h"
#include "utf8.h"

namespace dxf {
namespace {

/// One variable as it stands in the file: its name and the groups of its value.
struct Variable
{
    Group name;
    std::vector<Group> values;
};

std::vector<Variable> collect(RecordCursor& cursor)
{
    constexpr int kName = 9;
    constexpr std::size_t kMostValues = 3;
    std::vector<Variable> variables;
    while (cursor.nextInRecord()) {
        if (cursor.group().code == kName)
            variables.push_back({cursor.group(), {}});
        else if (!variables.empty() && variables.back().values.size() < kMostValues)
            variables.back().values.push_back(cursor.group());
    }
    return variables;
}

const Variable* find(const std::vector<Variable>& variables, std::string_view name)
{
    const auto found = std::ranges::find_if(variables, [=](const Variable& variable) {
        return trimmed(variable.name.text) == name && !variable.values.empty();
    });
    return found == variables.end() ? nullptr : &*found;
}

std::string_view textOf(const Variable* variable)
{
    return variable ? trimmed(variable->values.front().text) : std::string_view();
}

KdDbHeaderValue integerValue(const Group& group, bool& good)
{
    std::int64_t value = 0;
    good = integerOf(group, value) == NumberState::Good;
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

KdDbHeaderValue realValue(const Group& group, bool& good)
{
    constexpr double kRadians = std::numbers::pi / 180.0;
    double value = 0.0;
    good = realOf(group, value) != NumberState::Malformed;
    const bool isInDegrees = group.code >= 50 && group.code <= 58;
    return isInDegrees ? value * kRadians : value;
}

KdDbHeaderValue pointValue(const std::vector<Group>& groups, bool& good)
{
    double coordinates[3] = {};
    for (std::size_t i = 0; i < groups.size() && i < 3; ++i)
        good = realOf(groups[i], coordinates[i]) != NumberState::Malformed && good;
    return KdGePoint3d{coordinates[0], coordinates[1], coordinates[2]};
}

/// The value of a variable in the kind of `like`.
KdDbHeaderValue valueOf(const Variable& variable, const KdDbHeaderValue& like,
                        const TextDecoder& decoder, bool& good)
{
    const Group& first = variable.values.front();
    good = true;
    if (std::holds_alternative<std::int32_t>(like))
        return integerValue(first, good);
    if (std::holds_alternative<double>(like))
        return realValue(first, good);
    if (std::holds_alternative<KdString>(like))
        return decoder.decode(first.text);
    return pointValue(variable.values, good);
}

/// Names that variables had in old versions.
struct OldName
{
    std::string_view old;
    std::wstring_view name;
};

constexpr OldName kOldNames[] = {{"UCSXORI", L"UCSXDIR"}, {"UCSYORI", L"UCSYDIR"}};

int indexOf(std::string_view name, const TextDecoder& decoder)
{
    const auto* old = std::ranges::find(kOldNames, name, &OldName::old);
    return KdDbHeaderVariables::indexOf(old != std::end(kOldNames) ? KdString(old->name)
                                                                   : decoder.decode(name));
}

/// A variable of R13 and R14 that two later ones stand for.
struct SplitVariable
{
    std::string_view old;
    const wchar_t* first;
    const wchar_t* second;
    std::span<const std::pair<int, int>> values; ///< by the old value
};

constexpr std::pair<int, int> kUnits[] = {{2, 0}, {1, 0}, {2, 0}, {3, 0}, {4, 0},
                                          {5, 0}, {4, 2}, {5, 2}, {6, 0}};
constexpr std::pair<int, int> kFits[] = {{0, 0}, {1, 0}, {2, 0}, {3, 0}, {3, 1}, {3, 2}};
constexpr SplitVariable kSplitVariables[] = {{"DIMUNIT", L"DIMLUNIT", L"DIMFRAC", kUnits},
                                             {"DIMFIT", L"DIMATFIT", L"DIMTMOVE", kFits}};

bool storeSplit(std::string_view name, const Group& value, KdDbHeaderVariables& header)
{
    const auto* row = std::ranges::find(kSplitVariables, name, &SplitVariable::old);
    if (row == std::end(kSplitVariables))
        return false;
    const std::int64_t number = looseIntegerOf(value);
    if (number >= 0 && number < static_cast<std::int64_t>(row->values.size())) {
        const auto& [first, second] = row->values[static_cast<std::size_t>(number)];
        header.setValue(KdDbHeaderVariables::indexOf(row->first), first);
        header.setValue(KdDbHeaderVariables::indexOf(row->second), second);
    }
    return true;
}

void store(const Variable& variable, DrawingSource& source)
{
    const std::string_view name = trimmed(variable.name.text);
    if (variable.values.empty() || !name.starts_with('$') ||
        storeSplit(name.substr(1), variable.values.front(), source.database.header()))
        return;
    const int index = indexOf(name.substr(1), source.decoder);
    if (index < 0)
        return;
    KdDbHeaderVariables& header = source.database.header();
    bool good = true;
    KdDbHeaderValue value = valueOf(variable, header.value(index), source.decoder, good);
    if (good)
        header.setValue(index, std::move(value));
    else
        source.findings.add(DrawingFinding::BadHeaderVariable, variable.name.offset,
                            source.decoder.decode(name));
}

/// The number in a version's name. The oldest versions have names of another form.
int numberOfVersion(std::string_view version)
{
    std::int64_t number = 0;
    const bool isUsual = version.starts_with("AC") && version.size() == 6 &&
                         parseInteger(version.substr(2), number) == NumberState::Good;
    return isUsual ? static_cast<int>(number) : 0;
}

/// The first versions were numbered with a point; the last one known is that of R2018.
bool isKnownVersion(std::string_view version)
{
    constexpr int kLast = 1032;
    const int number = numberOfVersion(version);
    const bool isOfTheFirst = version.size() > 3 && version.find('.') == 3;
    return (number > 0 && number <= kLast) || isOfTheFirst;
}

/// Some writers put UTF-8 into old versions. Text of another page hardly ever looks like it by
/// chance, and the less so the more of it there is; pairs need more evidence than single bytes.
bool holdsUtf8(const DrawingSource& source)
{
    const std::size_t needed = source.decoder.codePage().hasPairs() ? 4 : 1;
    if (source.form.binary) // its numbers are full of such bytes
        return false;
    const Utf8Evidence evidence = findUtf8(source.form.bytes.substr(source.form.begin));
    return evidence.wellFormed && evidence.characters >= needed;
}

} // namespace

void chooseEncoding(DrawingSource& source, std::string_view codePage, std::uint64_t offset)
{
    // From this version on texts are UTF-8, whatever the file says.
    constexpr int kFirstWithUtf8 = 1021;
    if (source.version >= kFirstWithUtf8) {
        source.decoder.useUtf8();
        return;
    }
    if (!codePage.empty() && !source.decoder.useCodePage(codePage))
        source.findings.add(DrawingFinding::UnknownCodePage, offset,
                            source.decoder.decode(codePage));
    source.decoder.decideLater([&source, offset] {
        const bool isWrong = holdsUtf8(source);
        if (isWrong)
            source.findings.add(DrawingFinding::CodePageIsWrong, offset);
        return isWrong;
    });
}

void readHeader(RecordCursor& cursor, DrawingSource& source, KdString& version)
{
    const std::vector<Variable> variables = collect(cursor);
    const Variable* stating = find(variables, "$ACADVER");
    const std::string_view stated = textOf(stating);
    const Variable* codePage = find(variables, "$DWGCODEPAGE");
    if (!stated.empty()) {
        version = source.decoder.decode(stated);
        source.version = numberOfVersion(stated);
        if (!isKnownVersion(stated))
            source.findings.add(DrawingFinding::UnknownVersion, stating->name.offset, version);
    }
    chooseEncoding(source, textOf(codePage), codePage ? codePage->name.offset : cursor.offset());
    for (const Variable& variable : variables)
        store(variable, source);
}

} // namespace dxf
