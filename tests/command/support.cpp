#include "support.h"

#include <editor/system_variables.h>

#include <command/entry.h>
#include <command/filter_preview.h>
#include <command/selection_run.h>
#include <values/globals.h>

namespace command_test {

namespace {

class EnglishTexts : public testing::Environment
{
  public:
    void SetUp() override { setResourceLanguage("en"); }
};

[[maybe_unused]] const auto* const kTexts = testing::AddGlobalTestEnvironment(new EnglishTexts);

Ids membersOf(const kds_name set)
{
    long length = 0;
    EXPECT_EQ(kdedSSLength(set, &length), RTNORM);
    Ids ids;
    for (long index = 0; index < length; ++index) {
        kds_name entity{};
        KdDbObjectId id;
        EXPECT_EQ(kdedSSName(set, index, entity), RTNORM);
        EXPECT_EQ(kddbGetObjectId(id, entity), eOk);
        ids.push_back(id);
    }
    return ids;
}

} // namespace

KD_RX_DEFINE(NamelessEntity, KdDbEntity, L"", L"")

MadeFilter& MadeFilter::layer(const wchar_t* operatorText, const wchar_t* layer)
{
    return property(kLayerKey, operatorText, layer);
}

MadeFilter& MadeFilter::property(const wchar_t* key, const wchar_t* operatorText,
                                 const wchar_t* text)
{
    ResBuf::relRb(parameters.filter);
    parameters.filter = ResBuf::newRb(ResBuf::kString, text);
    parameters.propertyParameters = {key, operatorText, ResBuf::kString};
    return *this;
}

MadeFilter& MadeFilter::type(const wchar_t* displayName, const wchar_t* className)
{
    parameters.objectTypeName = displayName;
    parameters.objectClassName = className;
    return *this;
}

MadeFilter& MadeFilter::overStart()
{
    parameters.entireDrawing = false;
    parameters.selectionSource = -1;
    return *this;
}

MadeFilter& MadeFilter::overPicked(Entities entities)
{
    parameters.entireDrawing = false;
    parameters.selectionSource = 0;
    picked = std::move(entities);
    return *this;
}

MadeFilter& MadeFilter::exclude()
{
    parameters.include = false;
    return *this;
}

MadeFilter& MadeFilter::append()
{
    parameters.append = true;
    return *this;
}

MadeFilter& MadeFilter::cancelling()
{
    m_cancels = true;
    return *this;
}

bool MadeFilter::ask(const Candidates& candidates, FilterChoice& choice)
{
    ++asked;
    drawingTypes = candidates.drawingTypeEntities;
    selectionTypes = candidates.selectionTypeEntities;
    if (whenAsked)
        whenAsked(candidates);
    choice = {&parameters, picked};
    return !m_cancels;
}

GivenSet::GivenSet(const Ids& members)
{
    EXPECT_EQ(kdedSSAdd(nullptr, nullptr, name), RTNORM);
    for (const KdDbObjectId id : members) {
        kds_name entity{};
        EXPECT_EQ(kddbGetKdsName(entity, id), eOk);
        EXPECT_EQ(kdedSSAdd(entity, name, name), RTNORM);
    }
}

Ids GivenSet::members() const
{
    return membersOf(name);
}

void erase(KdDbObjectId id)
{
    KdDbObject* object = nullptr;
    ASSERT_EQ(kddbOpenObject(object, id, KdDb::kForWrite), eOk);
    EXPECT_EQ(object->erase(), eOk);
    object->close();
}

CommandTest::CommandTest()
    : m_previousSink(
          kdutSetPrintSink([this](std::wstring_view text) { printed.emplace_back(text); }))
{
    kddbHostApplicationServices()->setWorkingDatabase(&drawing);
    gComboValues.clear();
    QSelectInit();
}

CommandTest::~CommandTest()
{
    QSelectUnInit();
    gComboValues.clear();
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    kdutSetPrintSink(m_previousSink);
}

void CommandTest::TearDown()
{
    EXPECT_EQ(drawing.openCount(), 0) << "objects were left open";
    EXPECT_EQ(kdedSelectionSetsInUse(), m_setsBefore) << "selection sets were left";
    EXPECT_EQ(ResBuf::recordsInUse(), m_recordsBefore) << "value records were left";
    EXPECT_TRUE(messages.shown.empty()) << "a message came up that the test does not expect";
}

void CommandTest::append(KdDbEntity* entity, KdDbObjectId blockId)
{
    KdDbBlockTableRecord* block = nullptr;
    ASSERT_EQ(kddbOpenObject(block, blockId, KdDb::kForWrite), eOk);
    EXPECT_EQ(block->appendEntity(entity), eOk);
    block->close();
}

void CommandTest::freeze(const wchar_t* layer)
{
    KdDbLayerTableRecord* record = nullptr;
    ASSERT_EQ(
        kddbOpenObject(record, drawing.findOrAddRecord<KdDbLayerTable>(layer), KdDb::kForWrite),
        eOk);
    record->edit().frozen = true;
    record->close();
}

void CommandTest::showSheet(short viewport)
{
    ASSERT_EQ(setShort(L"TILEMODE", 0), RTNORM);
    ASSERT_EQ(setShort(L"CVPORT", viewport), RTNORM);
}

int CommandTest::setShort(const wchar_t* variable, short value)
{
    resbuf record{};
    record.restype = RTSHORT;
    record.resval.rint = value;
    return kdedSetVar(variable, &record);
}

void CommandTest::select(const Ids& ids)
{
    const GivenSet set(ids);
    EXPECT_EQ(kdedSSSetFirst(set.name, nullptr), RTNORM);
}

Ids CommandTest::selection()
{
    kds_name set{};
    if (kdedSSGetFirst(set) != RTNORM)
        return {};
    const Ids ids = membersOf(set);
    EXPECT_EQ(kdedSSFree(set), RTNORM);
    return ids;
}

int CommandTest::run(MadeFilter& filter, long* ss)
{
    int told = -1;
    int foreseen = -1;
    Ids ids;
    filter.whenAsked = [&](const Candidates& candidates) {
        FilterPreview preview(candidates, filter.picked, filter.parameters);
        while (!preview.isDone())
            preview.goOn(std::chrono::milliseconds(0));
        foreseen = preview.isAbandoned() ? -1 : preview.matches();
        ids = preview.ids();
    };
    if (runSelection(ss, filter, told) != RunEnd::Done)
        return -1;
    if (filter.isForeseen) {
        EXPECT_EQ(foreseen, told);
        EXPECT_THAT(selection(), filter.parameters.append
                                     ? testing::IsSupersetOf(ids)
                                     : testing::UnorderedElementsAreArray(ids));
    }
    return told;
}

} // namespace command_test
