#include <command/entry.h>

#include <stdexcept>

#include "support.h"

using namespace command_test;
using testing::ElementsAre;

namespace {

/// Something goes wrong in the middle of a run.
class Trouble : public std::runtime_error
{
  public:
    Trouble() : std::runtime_error("trouble") {}
};

/// Notes which texts are current whenever a message comes up.
class NotingMessages : public MessageBoxHandler
{
  public:
    NotingMessages() : m_previous(setMessageBoxHandler(this)) {}
    ~NotingMessages() override { setMessageBoxHandler(m_previous); }
    int show(const Message&) override
    {
        current.push_back(AfxGetResourceHandle());
        if (throws)
            throw Trouble();
        return kMessageBoxOk;
    }

    bool throws = false;
    std::vector<HINSTANCE> current;

  private:
    MessageBoxHandler* m_previous;
};

constexpr const wchar_t* kOtherTexts = L"KrxOPMRes.dll";

/// Other texts than the module's are current before a run; the drawing is empty, so that each run
/// ends with a message.
class Entry : public CommandTest
{
  protected:
    Entry() { EXPECT_TRUE(SetCurrentResourceName(kOtherTexts)); }
    ~Entry() override { RestorePreviousResource(); }

    /// True if as many libraries are stacked as before the run.
    static bool textsAreAsBefore()
    {
        if (AfxGetResourceHandle() != LoadResourceDll(kOtherTexts))
            return false;
        RestorePreviousResource();
        const bool below = AfxGetResourceHandle() == moduleTexts();
        SetCurrentResourceName(kOtherTexts);
        return below;
    }
    static HINSTANCE moduleTexts() { return LoadResourceDll(L"KwQselectUtilRes.dll"); }

    NotingMessages noted;
};

struct EntryRow
{
    const char* name;
    void (*enter)(long* ss);
};

const EntryRow kEntries[] = {
    {"selectCmd", [](long*) { selectCmd(); }},
    {"selectCmdEx", selectCmdEx},
    {"QSelectCmd", [](long*) { QSelectCmd(); }},
    {"QSelectDialog", QSelectDialog},
};

class EachEntry : public Entry, public testing::WithParamInterface<EntryRow>
{
};

TEST_P(EachEntry, RunsWithTheTextsOfTheModule)
{
    GetParam().enter(nullptr);
    EXPECT_THAT(noted.current, ElementsAre(moduleTexts()));
    EXPECT_TRUE(textsAreAsBefore());
}

TEST_P(EachEntry, RestoresTheTextsWhenAnExceptionPasses)
{
    noted.throws = true;
    EXPECT_THROW(GetParam().enter(nullptr), Trouble);
    EXPECT_THAT(noted.current, ElementsAre(moduleTexts()));
    EXPECT_TRUE(textsAreAsBefore());
}

TEST_P(EachEntry, TakesASelectionSetWithoutWritingToIt)
{
    GivenSet given;
    const kds_name before = {given.name[0], given.name[1]};
    GetParam().enter(given.name);
    EXPECT_EQ(given.name[0], before[0]);
    EXPECT_EQ(given.name[1], before[1]);
    EXPECT_THAT(given.members(), testing::IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(, EachEntry, testing::ValuesIn(kEntries),
                         [](const auto& row) { return row.param.name; });

TEST_F(Entry, WithTheDialogNeedsAProgramWithWindows)
{
    KdDbEntity* const line = add(model());
    select({line->objectId()});
    selectCmd();
    EXPECT_THAT(printed, ElementsAre(L"\nThe quick-select dialog needs a program with windows."));
    EXPECT_THAT(selection(), ElementsAre(line->objectId()));
    EXPECT_THAT(noted.current, testing::IsEmpty());
    EXPECT_TRUE(textsAreAsBefore());
}

TEST_F(Entry, OfARunWithoutTheDialogRestoresTheTextsToo)
{
    quick_select::Result result{};
    QSelectRun({}, nullptr, result);
    EXPECT_THAT(noted.current, ElementsAre(moduleTexts()));
    EXPECT_TRUE(textsAreAsBefore());
}

TEST_F(Entry, OfARunWithoutTheDialogLeavesTheResultWhenAnExceptionPasses)
{
    noted.throws = true;
    quick_select::Result result{quick_select::Outcome::Done, 77};
    EXPECT_THROW(QSelectRun({}, nullptr, result), Trouble);
    EXPECT_EQ(result.matches, 77);
    EXPECT_TRUE(textsAreAsBefore());
}

TEST_F(Entry, OfAListRestoresTheTextsWhenTheVisitorThrows)
{
    KdDbEntity* line = add(model());
    const auto types = [](void*, const quick_select::Type&) { throw Trouble(); };
    const auto entities = [](void*, const quick_select::Entity&) { throw Trouble(); };
    const auto properties = [](void*, const quick_select::Property&) { throw Trouble(); };
    EXPECT_THROW(QSelectListTypes(nullptr, types, nullptr), Trouble);
    EXPECT_THROW(QSelectListEntities(nullptr, entities, nullptr), Trouble);
    EXPECT_THROW(QSelectListProperties(line->objectId(), nullptr, true, properties, nullptr),
                 Trouble);
    EXPECT_TRUE(textsAreAsBefore());
}

} // namespace
