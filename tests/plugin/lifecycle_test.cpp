#include <gtest/gtest.h>

#include <dlfcn.h>

#include <string>
#include <vector>

#include <database/database.h>
#include <editor/command_line.h>
#include <editor/selection_sets.h>
#include <entities/line.h>
#include <plugin/quick_select.h>

namespace {

/// The module as a host has it: loaded for the length of a scope, known by names alone.
class LoadedModule
{
  public:
    LoadedModule() : m_handle(dlopen(KW_MODULE, RTLD_NOW | RTLD_LOCAL))
    {
        EXPECT_NE(m_handle, nullptr) << dlerror();
    }
    ~LoadedModule() { EXPECT_EQ(dlclose(m_handle), 0) << dlerror(); }
    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;

    template <class Function>
    Function* find(const char* name) const
    {
        void* const symbol = dlsym(m_handle, name);
        EXPECT_NE(symbol, nullptr) << name;
        return reinterpret_cast<Function*>(symbol);
    }
    void* handle() const { return m_handle; }

    static bool isInMemory()
    {
        void* const handle = dlopen(KW_MODULE, RTLD_NOW | RTLD_NOLOAD);
        if (handle)
            dlclose(handle);
        return handle != nullptr;
    }

  private:
    void* m_handle;
};

void addLine(KdDbDatabase& drawing)
{
    KdDbBlockTableRecord* model = nullptr;
    ASSERT_EQ(kddbOpenObject(model, drawing.modelSpaceId(), KdDb::kForWrite), eOk);
    EXPECT_EQ(model->appendEntity(new KdDbLine), eOk);
    model->close();
}

/// A drawing with one line is the working one, and what is printed is kept.
class Lifecycle : public testing::Test
{
  protected:
    Lifecycle()
        : m_previousSink(kdutSetPrintSink([this](std::wstring_view text) { printed += text; }))
    {
        addLine(drawing);
        kddbHostApplicationServices()->setWorkingDatabase(&drawing);
    }
    ~Lifecycle() override
    {
        kddbHostApplicationServices()->setWorkingDatabase(nullptr);
        kdutSetPrintSink(m_previousSink);
    }

    KdDbDatabase drawing;
    std::wstring printed;

  private:
    KdutPrintSink m_previousSink;
};

/// The whole life of the module: it comes, serves one run, and goes.
void liveOnce()
{
    const LoadedModule module;
    const auto dllMain = module.find<quick_select::DllMainFunction>("DllMain");
    ASSERT_NE(dllMain, nullptr);
    EXPECT_EQ(dllMain(module.handle(), quick_select::kAttach, nullptr), 1);
    module.find<quick_select::QSelectInitFunction>("QSelectInit")();

    quick_select::Result result{};
    module.find<quick_select::QSelectRunFunction>("QSelectRun")({}, nullptr, result);
    EXPECT_EQ(result.outcome, quick_select::Outcome::Done);
    EXPECT_EQ(result.matches, 1);

    module.find<quick_select::QSelectUnInitFunction>("QSelectUnInit")();
    EXPECT_EQ(dllMain(module.handle(), quick_select::kDetach, nullptr), 1);
}

TEST_F(Lifecycle, RunsFromLoadingToUnloadingTwiceInOneProcess)
{
    for (int life = 0; life < 2; ++life) {
        printed.clear();
        liveOnce();
        EXPECT_EQ(printed, L"\n1 item(s) selected.");
        EXPECT_EQ(drawing.openCount(), 0);
        EXPECT_EQ(kdedSelectionSetsInUse(), 0);
    }
}

TEST_F(Lifecycle, TellsOfTheLastRunByItsExportedName)
{
    const LoadedModule module;
    const auto tell = module.find<quick_select::QSelectLastRequestFunction>("QSelectLastRequest");
    ASSERT_NE(tell, nullptr);
    module.find<quick_select::QSelectInitFunction>("QSelectInit")();
    int visits[2] = {}; // without and with a request
    const auto count = [](void* context, const quick_select::PastRequest* past) {
        ++static_cast<int*>(context)[past ? 1 : 0];
    };
    tell(count, visits);
    quick_select::Result result{};
    module.find<quick_select::QSelectRunFunction>("QSelectRun")({}, nullptr, result);
    tell(count, visits);
    module.find<quick_select::QSelectUnInitFunction>("QSelectUnInit")();
    tell(count, visits);
    EXPECT_EQ(visits[0], 2);
    EXPECT_EQ(visits[1], 1);
}

TEST_F(Lifecycle, LeavesNothingOfTheModuleInMemory)
{
    liveOnce();
    EXPECT_FALSE(LoadedModule::isInMemory());
}

TEST_F(Lifecycle, LeavesTheHostsClassesAsTheyWere)
{
    const std::size_t before = kdrxAllClasses().size();
    liveOnce();
    EXPECT_EQ(kdrxAllClasses().size(), before);
    EXPECT_EQ(kdrxFindKdRxClass(L"KdDbEntityPE"), nullptr);
}

TEST_F(Lifecycle, ServesNoRunBeforeItIsInitialised)
{
    const LoadedModule module;
    quick_select::Result result{};
    module.find<quick_select::QSelectRunFunction>("QSelectRun")({}, nullptr, result);
    EXPECT_EQ(result.outcome, quick_select::Outcome::Abandoned);
    EXPECT_TRUE(printed.empty());
}

} // namespace
