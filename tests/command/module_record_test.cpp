#include <command/module_record.h>

#include <gtest/gtest.h>

#include <platform/resources.h>

#include <command/entry.h>
#include <command/resource_scope.h>

namespace {

constexpr unsigned kAttach = 1;
constexpr unsigned kDetach = 0;

/// Each test finds the record as it is when the module has just been loaded.
class ModuleRecord : public testing::Test
{
  protected:
    ModuleRecord() { theArxDLL = {}; }
    ~ModuleRecord() override { theArxDLL = {}; }

    int first = 0;
    int second = 0;
};

TEST_F(ModuleRecord, IsWhatTheResourceOverridePointsTo)
{
    EXPECT_EQ(CKdModuleResourceOverride::m_extensionModule, &theArxDLL);
}

TEST_F(ModuleRecord, HoldsTheFlagThenTheResourcesThenTheModule)
{
    EXPECT_EQ(offsetof(CKdExtensionModule, attached), 0u);
    EXPECT_EQ(offsetof(CKdExtensionModule, resourceHandle), sizeof(void*));
    EXPECT_EQ(offsetof(CKdExtensionModule, moduleHandle), 2 * sizeof(void*));
}

TEST_F(ModuleRecord, NotesBothHandlesWhenTheModuleIsAttached)
{
    const ResourceScope resources;
    ASSERT_NE(AfxGetResourceHandle(), nullptr);
    EXPECT_EQ(DllMain(&first, kAttach, nullptr), 1);
    EXPECT_EQ(theArxDLL.attached, 1);
    EXPECT_EQ(theArxDLL.resourceHandle, AfxGetResourceHandle());
    EXPECT_EQ(theArxDLL.moduleHandle, &first);
}

TEST_F(ModuleRecord, KeepsTheFirstHandlesWhenTheModuleIsAttachedAgain)
{
    DllMain(&first, kAttach, nullptr);
    void* const resourcesBefore = theArxDLL.resourceHandle;
    const ResourceScope resources;
    EXPECT_EQ(DllMain(&second, kAttach, nullptr), 1);
    EXPECT_EQ(theArxDLL.attached, 1);
    EXPECT_EQ(theArxDLL.resourceHandle, resourcesBefore);
    EXPECT_EQ(theArxDLL.moduleHandle, &first);
}

TEST_F(ModuleRecord, OnlyForgetsTheFlagWhenTheModuleIsDetached)
{
    const ResourceScope resources;
    DllMain(&first, kAttach, nullptr);
    EXPECT_EQ(DllMain(&first, kDetach, nullptr), 1);
    EXPECT_EQ(theArxDLL.attached, 0);
    EXPECT_EQ(theArxDLL.resourceHandle, AfxGetResourceHandle());
    EXPECT_EQ(theArxDLL.moduleHandle, &first);
}

TEST_F(ModuleRecord, TakesANewHandleAfterDetaching)
{
    DllMain(&first, kAttach, nullptr);
    DllMain(&first, kDetach, nullptr);
    DllMain(&second, kAttach, nullptr);
    EXPECT_EQ(theArxDLL.moduleHandle, &second);
}

TEST_F(ModuleRecord, StaysEmptyWhenTheModuleIsDetachedBeforeItWasAttached)
{
    EXPECT_EQ(DllMain(&first, kDetach, nullptr), 1);
    EXPECT_EQ(theArxDLL.attached, 0);
    EXPECT_EQ(theArxDLL.moduleHandle, nullptr);
}

TEST_F(ModuleRecord, IgnoresEveryOtherReason)
{
    for (const unsigned reason : {2u, 3u, 0xFFFFFFFFu}) {
        EXPECT_EQ(DllMain(&first, reason, nullptr), 1);
        EXPECT_EQ(theArxDLL.attached, 0);
        EXPECT_EQ(theArxDLL.moduleHandle, nullptr);
    }
}

} // namespace
