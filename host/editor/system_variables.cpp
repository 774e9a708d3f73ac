#include <editor/system_variables.h>

#include "session.h"
#include "variable_rules.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cwchar>
#include <iterator>
#include <limits>
#include <utility>
#include <variant>

namespace {

constexpr short kLowestShort = std::numeric_limits<short>::min();
constexpr short kHighestShort = std::numeric_limits<short>::max();

/// A variable that no drawing file holds. All of them are short integers.
struct SessionRow
{
    const wchar_t* name;
    short lowest;
    short highest;
    short initial;
    bool ofDrawing = false;
};

// clang-format off
constexpr SessionRow kSessionRows[] = {
    // name                 lowest  highest        initial
    {L"COLORTHEME",         0,      1,             0},        // 0 dark, 1 light
    {L"CVPORT",             1,      kHighestShort, 0, true},  // follows the space until it is set
    {L"GRIPS",              0,      2,             2},
    {L"LWUNITS",            0,      1,             1},        // 0 inches, 1 millimetres
    {L"QSELECTLISTVALUES",  0,      1,             0},
    {L"USEDEGREESYM",       0,      1,             1},
};
// clang-format on

/// The current values of the rows that belong to the session.
short& sessionValue(const SessionRow& row)
{
    static auto values = [] {
        std::array<short, std::size(kSessionRows)> initial{};
        std::transform(std::begin(kSessionRows), std::end(kSessionRows), initial.begin(),
                       [](const SessionRow& each) { return each.initial; });
        return initial;
    }();
    return values[static_cast<std::size_t>(&row - kSessionRows)];
}

const SessionRow* findSessionRow(std::wstring_view name)
{
    const auto found =
        std::find_if(std::begin(kSessionRows), std::end(kSessionRows),
                     [=](const SessionRow& row) { return KdNameEqual()(row.name, name); });
    return found == std::end(kSessionRows) ? nullptr : &*found;
}

constexpr short kSheetViewport = 1;
constexpr short kFirstModelViewport = 2;

bool isModelShown(const KdDbDatabase& database)
{
    return database.header().integer(L"TILEMODE") != 0;
}

/// The space whose viewports are numbered: the one that the window shows.
KdDbObjectId shownSpace(const KdDbDatabase& database)
{
    return isModelShown(database) ? database.modelSpaceId() : database.activeSheetId();
}

short lowestViewport(const KdDbDatabase& database)
{
    return isModelShown(database) ? kFirstModelViewport : kSheetViewport;
}

// A number set in one space says nothing about another, so it counts only while its space is shown.
short currentViewport(const KdDbDatabase& database)
{
    const DrawingState& state = EditorSession::instance().stateOf(database);
    if (state.viewport != 0 && state.viewportSpace == shownSpace(database))
        return state.viewport;
    return lowestViewport(database);
}

int setCurrentViewport(const KdDbDatabase& database, short number)
{
    if (number < lowestViewport(database))
        return RTREJ;
    DrawingState& state = EditorSession::instance().stateOf(database);
    state.viewport = number;
    state.viewportSpace = shownSpace(database);
    return RTNORM;
}

KdDbDatabase* workingDatabase()
{
    return kddbHostApplicationServices()->workingDatabase();
}

void write(resbuf& record, std::int32_t value)
{
    // A damaged file may hold anything; its sign at least survives.
    record.restype = RTSHORT;
    record.resval.rint =
        static_cast<short>(std::clamp<std::int32_t>(value, kLowestShort, kHighestShort));
}

void write(resbuf& record, double value)
{
    record.restype = RTREAL;
    record.resval.rreal = value;
}

void write(resbuf& record, const KdString& value)
{
    record.restype = RTSTR;
    record.resval.rstring = kdutNewString(value.kwszPtr());
}

void write(resbuf& record, const KdGePoint3d& value)
{
    record.restype = RT3DPOINT;
    record.resval.rpoint[0] = value.x;
    record.resval.rpoint[1] = value.y;
    record.resval.rpoint[2] = value.z;
}

// In the order of the kinds in KdDbHeaderValue.
constexpr short kRestypes[] = {RTSHORT, RTREAL, RTSTR, RT3DPOINT};
static_assert(std::size(kRestypes) == std::variant_size_v<KdDbHeaderValue>);

short restypeOf(const KdDbHeaderValue& value)
{
    return kRestypes[value.index()];
}

KdDbHeaderValue valueOf(const resbuf& record)
{
    const kds_value& value = record.resval;
    switch (record.restype) {
    case RTSHORT:
        return std::int32_t{value.rint};
    case RTREAL:
        return value.rreal;
    case RTSTR:
        return KdString(value.rstring);
    default:
        return KdGePoint3d{value.rpoint[0], value.rpoint[1], value.rpoint[2]};
    }
}

/// Whether a value of the right kind keeps the rule.
struct Judge
{
    const VariableRule& rule;
    const KdDbDatabase& database;

    bool operator()(std::int32_t value) const { return rule.range.holds(value); }
    bool operator()(double value) const { return std::isfinite(value) && rule.range.holds(value); }
    bool operator()(const KdString& value) const
    {
        return !rule.names || rule.names(database, value);
    }
    bool operator()(const KdGePoint3d& value) const
    {
        return std::isfinite(value.x) && std::isfinite(value.y) && std::isfinite(value.z);
    }
};

int setHeaderVariable(int index, const resbuf& record)
{
    KdDbDatabase* database = workingDatabase();
    if (!database || record.restype != restypeOf(database->header().value(index)) ||
        (record.restype == RTSTR && !record.resval.rstring))
        return RTERROR;
    const VariableRule& rule = ruleOfHeaderVariable(index);
    KdDbHeaderValue value = valueOf(record);
    if (rule.readOnly || !std::visit(Judge{rule, *database}, value))
        return RTREJ;
    database->header().setValue(index, std::move(value));
    return RTNORM;
}

int getSessionVariable(const wchar_t* name, resbuf& result)
{
    const SessionRow* row = findSessionRow(name);
    const KdDbDatabase* database = workingDatabase();
    if (!row || (row->ofDrawing && !database))
        return RTERROR;
    write(result, std::int32_t{row->ofDrawing ? currentViewport(*database) : sessionValue(*row)});
    return RTNORM;
}

int setSessionVariable(const wchar_t* name, const resbuf& record)
{
    const SessionRow* row = findSessionRow(name);
    const KdDbDatabase* database = workingDatabase();
    if (!row || record.restype != RTSHORT || (row->ofDrawing && !database))
        return RTERROR;
    const short value = record.resval.rint;
    if (value < row->lowest || value > row->highest)
        return RTREJ;
    if (row->ofDrawing)
        return setCurrentViewport(*database, value);
    sessionValue(*row) = value;
    return RTNORM;
}

} // namespace

int kdedGetVar(const wchar_t* name, resbuf* result)
{
    if (!name || !result)
        return RTERROR;
    const int index = KdDbHeaderVariables::indexOf(name);
    if (index < 0)
        return getSessionVariable(name, *result);
    const KdDbDatabase* database = workingDatabase();
    if (!database)
        return RTERROR;
    std::visit([=](const auto& value) { write(*result, value); }, database->header().value(index));
    return RTNORM;
}

int kdedSetVar(const wchar_t* name, const resbuf* value)
{
    if (!name || !value)
        return RTERROR;
    const int index = KdDbHeaderVariables::indexOf(name);
    return index < 0 ? setSessionVariable(name, *value) : setHeaderVariable(index, *value);
}

std::vector<KdedSystemVariable> kdedSystemVariables()
{
    std::vector<KdedSystemVariable> variables;
    int index = 0;
    for (const KdDbHeaderVariable& variable : KdDbHeaderVariables::all()) {
        const VariableRule& rule = ruleOfHeaderVariable(index++);
        variables.push_back({variable.name, restypeOf(variable.initial), rule.readOnly, true,
                             rule.range.lowest, rule.range.highest});
    }
    for (const SessionRow& row : kSessionRows)
        variables.push_back(
            {row.name, RTSHORT, false, row.ofDrawing, double(row.lowest), double(row.highest)});
    std::sort(variables.begin(), variables.end(),
              [](const auto& a, const auto& b) { return std::wcscmp(a.name, b.name) < 0; });
    return variables;
}
