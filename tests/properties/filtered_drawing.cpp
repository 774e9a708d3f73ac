#include "filtered_drawing.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include <editor/selection_sets.h>
#include <editor/system_variables.h>
#include <entities/all.h>
#include <plugin/entity_pe.h>

#include <command/selection_run.h>
#include <values/display_name.h>
#include <values/filter_value.h>

namespace properties_test {
namespace {

using command_test::Ids;
using command_test::MadeFilter;

bool isOnFrozenLayer(const KdDbEntity& entity)
{
    const OpenForRead<KdDbLayerTableRecord> layer(entity.layerId());
    return layer && layer->isFrozen();
}

/// The view that a sheet itself is belongs to no one's drawing.
bool isSheetView(const KdDbEntity& entity)
{
    return entity.isKindOf(KdDbViewport::desc()) &&
           static_cast<const KdDbViewport&>(entity).number() == 1;
}

bool isViewThatIsOff(const KdDbEntity& entity)
{
    return entity.isKindOf(KdDbViewport::desc()) &&
           !static_cast<const KdDbViewport&>(entity).isOn();
}

/// The name of a block reference is read from its block, and where there is none to read, no test
/// holds, not even that for all.
bool isNameOfLostBlock(const Subject& subject, const std::wstring& key)
{
    if (key != L"Misc:Name" || !subject.entity->isKindOf(KdDbBlockReference::desc()))
        return false;
    const auto& reference = static_cast<const KdDbBlockReference&>(*subject.entity);
    return !OpenForRead<KdDbBlockTableRecord>(reference.blockTableRecord());
}

std::vector<Subject> subjectsOf(const KdDbDatabase& drawing)
{
    std::vector<Subject> subjects;
    const OpenForRead<KdDbBlockTableRecord> model(drawing.modelSpaceId());
    KdDbBlockTableRecordIterator* walker = nullptr;
    EXPECT_EQ(model->newIterator(walker), eOk);
    const std::unique_ptr<KdDbBlockTableRecordIterator> iterator(walker);
    for (iterator->start(); !iterator->done(); iterator->step()) {
        KdDbEntity* entity = nullptr;
        EXPECT_EQ(iterator->getEntity(entity, KdDb::kForRead), eOk);
        if (!isSheetView(*entity))
            subjects.push_back({subjects.size(), entity, entity->isA()->name(),
                                GetLocalNameOfKdDbEntityEx(entity), isOnFrozenLayer(*entity),
                                isViewThatIsOff(*entity)});
        entity->close();
    }
    return subjects;
}

const wchar_t* operatorOf(Test test)
{
    switch (test) {
    case Test::Equal:
        return L"=";
    case Test::NotEqual:
        return L"<>";
    case Test::Greater:
        return L">";
    case Test::Less:
        return L"<";
    case Test::All:
        return L"";
    default:
        return L"*";
    }
}

/// What a kind offers: texts have patterns, and what is some number has an order.
std::vector<Test> testsOf(int kind)
{
    static const std::set<int> kNumbers = {5001, 5002, 5003, 5004, 5009, 5010, 5011, 48, 280, 441};
    std::vector<Test> tests{Test::All};
    if (kind == 5000) // nothing to compare with
        return tests;
    tests.insert(tests.end(), {Test::Equal, Test::NotEqual});
    if (kNumbers.contains(kind))
        tests.insert(tests.end(), {Test::Greater, Test::Less});
    if (kind == 5005)
        tests.insert(tests.end(), {Test::LikeIt, Test::LikeBegin});
    return tests;
}

/// Names of this kind can't be asked for by an empty text; no person can type one.
bool canBeTyped(const Wanted& wanted)
{
    static const std::set<int> kNames = {6, 370, 380, 440};
    return !kNames.contains(wanted.kind) || !wanted.value.text.empty();
}

/// A colour is picked, not typed.
FilterValue filterValueOf(const Wanted& wanted, Test test)
{
    constexpr int kColor = 5011;
    if (wanted.kind != kColor)
        return readFilterValue(wanted.kind, wanted.axis, KdString(typed(wanted, test)));
    return filterOfColor(KdCmColor(static_cast<std::uint32_t>(wanted.value.integer)));
}

/// What the fixture offers to tests.
class Selection : public command_test::CommandTest
{
  public:
    using CommandTest::select;
    using CommandTest::selection;
};

std::string narrow(const std::wstring& text)
{
    return testing::PrintToString(text);
}

} // namespace

const PlainValues& Subject::valuesOf(const std::wstring& key)
{
    const auto found = values.find(key);
    return found != values.end() ? found->second
                                 : values.emplace(key, readPlainly(*entity, key)).first->second;
}

FilteredDrawing::FilteredDrawing(KdDbDatabase& drawing, std::size_t wantedOfEach)
    : m_drawing(drawing), m_wantedOfEach(wantedOfEach), m_subjects(subjectsOf(drawing))
{
    for (const Subject& subject : m_subjects)
        m_numbers[subject.entity->objectId()] = subject.number;
    resbuf precision{};
    EXPECT_EQ(kdedGetVar(L"LUPREC", &precision), RTNORM);
    m_tolerance = std::pow(10.0, -precision.resval.rint);
}

std::vector<Subject*> FilteredDrawing::membersOf(const Type& type)
{
    std::vector<Subject*> members;
    for (Subject& subject : m_subjects) {
        // What has no name of its own goes by its class.
        const bool isNamed = subject.displayName.empty() || subject.displayName == type.displayName;
        if (type.className.empty() || (subject.className == type.className && isNamed))
            members.push_back(&subject);
    }
    return members;
}

FilteredDrawing::Outcome FilteredDrawing::expected(const Filter& filter)
{
    Outcome outcome;
    for (Subject* subject : membersOf(filter.type)) {
        if (subject->canMatch() && !isNameOfLostBlock(*subject, filter.key) &&
            satisfies(subject->valuesOf(filter.key), filter.test, filter.wanted))
            outcome.insert(subject->number);
    }
    return outcome;
}

FilteredDrawing::Outcome FilteredDrawing::expected(const Filter& filter, Mode mode)
{
    Outcome outcome = expected(filter);
    if (mode == Mode::Exclude) {
        Outcome others;
        for (const Subject& subject : m_subjects) {
            if (!subject.frozen && !outcome.contains(subject.number))
                others.insert(subject.number);
        }
        return others;
    }
    // A run that finds nothing leaves nothing selected, appended or not.
    if (mode == Mode::Append && !outcome.empty())
        outcome.merge(start());
    return outcome;
}

/// What is selected before something is appended.
FilteredDrawing::Outcome FilteredDrawing::start() const
{
    Outcome numbers;
    for (std::size_t number = 0; number < std::min<std::size_t>(2, m_subjects.size()); ++number)
        numbers.insert(number);
    return numbers;
}

FilteredDrawing::Outcome FilteredDrawing::run(const Filter& filter, Mode mode)
{
    MadeFilter made;
    FilterValue value;
    if (filter.test != Test::All) {
        value = filterValueOf(filter.wanted, filter.test);
        EXPECT_EQ(value.text, FilterText::Read) << inWords(filter);
    }
    made.parameters.filter = value.record;
    made.parameters.propertyParameters = {KdString(filter.key), operatorOf(filter.test),
                                          value.valueType, filter.wanted.axis};
    if (!filter.type.className.empty())
        made.type(filter.type.displayName.c_str(), filter.type.className.c_str());
    made.parameters.include = mode != Mode::Exclude;
    made.parameters.append = mode == Mode::Append;
    if (mode == Mode::Append) {
        Ids ids;
        for (const std::size_t number : start())
            ids.push_back(m_subjects[number].entity->objectId());
        Selection::select(ids);
    }
    int told = 0;
    EXPECT_EQ(runSelection(nullptr, made, told), RunEnd::Done);
    Outcome outcome;
    for (const KdDbObjectId id : Selection::selection())
        outcome.insert(m_numbers.at(id));
    return outcome;
}

std::string FilteredDrawing::inWords(const Filter& filter) const
{
    return narrow(filter.type.displayName) + ' ' + narrow(filter.key) + " axis " +
           std::to_string(filter.wanted.axis) + " kind " + std::to_string(filter.wanted.kind) +
           ' ' + narrow(operatorOf(filter.test)) + ' ' + narrow(typed(filter.wanted, filter.test)) +
           " within " + std::to_string(m_tolerance);
}

void FilteredDrawing::expectOutcome(const Filter& filter, Mode mode)
{
    ++m_runs;
    EXPECT_EQ(run(filter, mode), expected(filter, mode))
        << inWords(filter) << " mode " << static_cast<int>(mode);
}

/// Includes, and in turn does the same again, excludes, appends.
FilteredDrawing::Outcome FilteredDrawing::askTest(const Filter& filter)
{
    expectOutcome(filter, Mode::Include);
    constexpr Mode kOthers[] = {Mode::Exclude, Mode::Append, Mode::Include};
    expectOutcome(filter, kOthers[m_turn++ % std::size(kOthers)]);
    return expected(filter);
}

void FilteredDrawing::askValue(const Type& type, Subject& owner, const std::wstring& key,
                               const Wanted& wanted)
{
    std::map<Test, Outcome> outcomes;
    for (const Test test : testsOf(wanted.kind)) {
        if (test == Test::All || canBeTyped(wanted))
            outcomes[test] = askTest({type, key, test, wanted});
    }
    if (!owner.canMatch() || isNameOfLostBlock(owner, key) || !outcomes.contains(Test::Equal))
        return;
    const auto finds = [&](Test test, const Subject& subject) {
        return outcomes[test].contains(subject.number);
    };
    EXPECT_TRUE(finds(Test::Equal, owner)) << inWords({type, key, Test::Equal, wanted});
    for (const Subject* subject : membersOf(type)) {
        if (!subject->canMatch() || isNameOfLostBlock(*subject, key))
            continue;
        EXPECT_NE(finds(Test::Equal, *subject), finds(Test::NotEqual, *subject));
        const int held = finds(Test::Equal, *subject) + finds(Test::Greater, *subject) +
                         finds(Test::Less, *subject);
        EXPECT_TRUE(held == 1 || !isInOrder(wanted)) << inWords({type, key, Test::Greater, wanted});
    }
}

void FilteredDrawing::askProperty(const Type& type, Subject& example, const std::wstring& key)
{
    const int kind = example.valuesOf(key).front().kind;
    std::set<std::wstring> asked;
    for (Subject* owner : membersOf(type)) {
        const PlainValue& own = owner->valuesOf(key).front();
        if (own.kind != kind || asked.size() >= m_wantedOfEach)
            continue;
        for (int axis = isPoint(kind) ? 1 : 0; axis <= coordinates(kind); ++axis) {
            const Wanted wanted{kind, axis, own, m_tolerance};
            const std::wstring text = typed(wanted, Test::Equal) + std::to_wstring(own.integer);
            if (asked.insert(std::to_wstring(axis) + text).second)
                askValue(type, *owner, key, wanted);
            if (testing::Test::HasFailure())
                return;
        }
    }
}

void FilteredDrawing::askType(const Type& type)
{
    Subject& example = *membersOf(type).front();
    KdArray<KdString> names;
    KdArray<bool> flags;
    KdDbEntityPE::of(*example.entity)->PropertyCount(example.entity, names, flags);
    constexpr int kCommon = 8;
    const int count = type.className.empty() ? std::min(kCommon, names.length()) : names.length();
    for (int i = 0; i < count; ++i) {
        askProperty(type, example, std::wstring(names[i].view()));
        if (testing::Test::HasFailure())
            return;
    }
}

void FilteredDrawing::ask()
{
    std::set<std::wstring> asked;
    std::vector<Type> types{{}};
    for (const Subject& subject : m_subjects) {
        if (!subject.displayName.empty() && asked.insert(subject.displayName).second)
            types.push_back({subject.className, subject.displayName});
    }
    for (const Type& type : types)
        askType(type);
}

} // namespace properties_test
