#include <platform/registry.h>

#include <cstring>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "home.h"

namespace {

using namespace environment_test;

/// The text of a value, or its status in words.
std::wstring textOf(HKEY key, const wchar_t* name)
{
    wchar_t buffer[100] = {};
    unsigned size = sizeof buffer;
    unsigned type = 0;
    const long status = RegQueryValueExW(key, name, nullptr, &type,
                                         reinterpret_cast<unsigned char*>(buffer), &size);
    if (status != ERROR_SUCCESS)
        return L"status " + std::to_wstring(status);
    EXPECT_EQ(type, REG_SZ);
    EXPECT_EQ(size, (std::wcslen(buffer) + 1) * sizeof(wchar_t));
    return buffer;
}

class Registry : public HomeTest
{
  protected:
    CRegKey key;
};

TEST_F(Registry, KeepsTextsAndNumbers)
{
    ASSERT_EQ(key.Create(HKEY_CURRENT_USER, L"Software\\Some"), ERROR_SUCCESS);
    EXPECT_EQ(key.SetStringValue(L"Text", L"a \\ \u00E4"), ERROR_SUCCESS);
    EXPECT_EQ(key.SetDWORDValue(L"Number", 0xFFFFFFFE), ERROR_SUCCESS);
    EXPECT_EQ(key.SetStringValue(nullptr, L"its own"), ERROR_SUCCESS);
    CRegKey again;
    ASSERT_EQ(again.Open(HKEY_CURRENT_USER, L"SOFTWARE\\some\\", KEY_READ), ERROR_SUCCESS);
    EXPECT_EQ(textOf(again, L"TEXT"), L"a \\ \u00E4");
    EXPECT_EQ(textOf(again, L""), L"its own");
    std::uint32_t number = 0;
    EXPECT_EQ(again.QueryDWORDValue(L"Number", number), ERROR_SUCCESS);
    EXPECT_EQ(number, 0xFFFFFFFE);
    EXPECT_EQ(again.QueryDWORDValue(L"Text", number), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(textOf(again, L"Missing"), L"status 2");
}

TEST_F(Registry, TellsTheSizeOfAValue)
{
    key.Create(HKEY_CURRENT_USER, L"k");
    key.SetStringValue(L"Text", L"abc");
    key.SetDWORDValue(L"Number", 7);
    unsigned size = 0;
    unsigned type = 0;
    EXPECT_EQ(RegQueryValueExW(key, L"Text", nullptr, &type, nullptr, &size), ERROR_SUCCESS);
    EXPECT_EQ(size, 16u);
    EXPECT_EQ(RegQueryValueExW(key, L"Text", nullptr, nullptr, nullptr, nullptr), ERROR_SUCCESS);
    unsigned char bytes[16];
    std::memset(bytes, 0xAA, sizeof bytes);
    size = 15;
    EXPECT_EQ(RegQueryValueExW(key, L"Text", nullptr, nullptr, bytes, &size), ERROR_MORE_DATA);
    EXPECT_EQ(size, 16u);
    EXPECT_EQ(bytes[0], 0xAA);
    EXPECT_EQ(RegQueryValueExW(key, L"Number", nullptr, &type, bytes, &size), ERROR_SUCCESS);
    EXPECT_EQ(type, REG_DWORD);
    EXPECT_EQ(size, 4u);
    EXPECT_EQ(bytes[0], 7);
    EXPECT_EQ(RegQueryValueExW(key, L"Number", &size, nullptr, bytes, &size),
              ERROR_INVALID_PARAMETER);
    EXPECT_EQ(RegQueryValueExW(key, L"Number", nullptr, nullptr, bytes, nullptr),
              ERROR_INVALID_PARAMETER);
}

TEST_F(Registry, MakesTheKeysOnTheWay)
{
    ASSERT_EQ(key.Create(HKEY_CURRENT_USER, L"a\\b\\c"), ERROR_SUCCESS);
    EXPECT_EQ(key.Open(HKEY_CURRENT_USER, L"a\\b"), ERROR_SUCCESS);
    EXPECT_EQ(key.Open(key, L"c"), ERROR_SUCCESS) << "the parent may be the key itself";
    EXPECT_EQ(key.Open(HKEY_LOCAL_MACHINE, L"a"), ERROR_FILE_NOT_FOUND);
    EXPECT_NE(key.m_hKey, nullptr) << "a failed call changes nothing";
}

TEST_F(Registry, RefusesNamesThatAreNone)
{
    for (const wchar_t* name : {L"a\\\\b", L"\\a", L":a", L"a\\:b"}) {
        EXPECT_EQ(key.Create(HKEY_CURRENT_USER, name), ERROR_INVALID_PARAMETER);
        EXPECT_EQ(key.Open(HKEY_CURRENT_USER, name), ERROR_INVALID_PARAMETER);
    }
    EXPECT_EQ(key.Open(HKEY_CURRENT_USER, nullptr), ERROR_SUCCESS) << "the root itself";
    EXPECT_EQ(key.RecurseDeleteKey(L""), ERROR_INVALID_PARAMETER);
}

TEST_F(Registry, TakesOutValuesAndTrees)
{
    key.Create(HKEY_CURRENT_USER, L"a\\b\\c");
    CRegKey other;
    other.Create(HKEY_CURRENT_USER, L"a\\bc");
    ASSERT_EQ(key.SetStringValue(L"x", L"1"), ERROR_SUCCESS);
    EXPECT_EQ(key.DeleteValue(L"X"), ERROR_SUCCESS);
    EXPECT_EQ(key.DeleteValue(L"x"), ERROR_FILE_NOT_FOUND);
    CRegKey top;
    top.Open(HKEY_CURRENT_USER, L"a");
    EXPECT_EQ(top.RecurseDeleteKey(L"nothing"), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(top.RecurseDeleteKey(L"b"), ERROR_SUCCESS);
    EXPECT_EQ(key.SetStringValue(L"x", L"1"), ERROR_KEY_DELETED);
    EXPECT_EQ(textOf(key, L"x"), L"status 1018");
    EXPECT_EQ(other.SetStringValue(L"x", L"1"), ERROR_SUCCESS) << "its name only begins alike";
    EXPECT_EQ(top.Create(top, L"b\\c"), ERROR_SUCCESS);
    EXPECT_EQ(key.SetStringValue(L"x", L"1"), ERROR_SUCCESS) << "it is there again";
}

TEST_F(Registry, HoldsKeysToWhatTheyWereOpenedFor)
{
    key.Create(HKEY_CURRENT_USER, L"a");
    key.SetStringValue(L"x", L"1");
    CRegKey reading;
    ASSERT_EQ(reading.Open(HKEY_CURRENT_USER, L"a", KEY_READ), ERROR_SUCCESS);
    EXPECT_EQ(textOf(reading, L"x"), L"1");
    EXPECT_EQ(reading.SetStringValue(L"x", L"2"), ERROR_ACCESS_DENIED);
    EXPECT_EQ(reading.RecurseDeleteKey(L"b"), ERROR_ACCESS_DENIED);
    CRegKey below;
    EXPECT_EQ(below.Create(reading, L"b"), ERROR_ACCESS_DENIED);
    CRegKey writing;
    ASSERT_EQ(writing.Open(HKEY_CURRENT_USER, L"a", KEY_WRITE), ERROR_SUCCESS);
    EXPECT_EQ(textOf(writing, L"x"), L"status 5");
}

TEST_F(Registry, KnowsWhichKeysAreOpen)
{
    key.Create(HKEY_CURRENT_USER, L"a");
    const HKEY handle = key.m_hKey;
    EXPECT_EQ(key.Close(), ERROR_SUCCESS);
    EXPECT_EQ(key.Close(), ERROR_SUCCESS) << "nothing is held";
    EXPECT_EQ(RegCloseKey(handle), ERROR_INVALID_HANDLE);
    EXPECT_EQ(textOf(handle, L"x"), L"status 6");
    EXPECT_EQ(textOf(nullptr, L"x"), L"status 6");
    EXPECT_EQ(key.Open(nullptr, L"a"), ERROR_INVALID_HANDLE);
    EXPECT_EQ(RegCloseKey(HKEY_CURRENT_USER), ERROR_SUCCESS);
    EXPECT_EQ(key.Open(HKEY_CURRENT_USER, L"a"), ERROR_SUCCESS);
    CRegKey moved = std::move(key);
    EXPECT_EQ(key.m_hKey, nullptr);
    EXPECT_EQ(moved.SetStringValue(L"x", L"1"), ERROR_SUCCESS);
}

TEST_F(Registry, ClosesAKeyThatGivesItsPlaceToAnother)
{
    key.Create(HKEY_CURRENT_USER, L"a");
    CRegKey other;
    other.Create(HKEY_CURRENT_USER, L"b");
    const HKEY closed = other.m_hKey;
    other = std::move(key);
    EXPECT_EQ(key.m_hKey, nullptr);
    EXPECT_EQ(RegCloseKey(closed), ERROR_INVALID_HANDLE);
    CRegKey& itself = other;
    other = std::move(itself);
    EXPECT_EQ(other.SetStringValue(L"x", L"1"), ERROR_SUCCESS) << "it is open still";
}

TEST_F(Registry, TellsThatANumberIsMissing)
{
    key.Create(HKEY_CURRENT_USER, L"a");
    std::uint32_t number = 7;
    EXPECT_EQ(key.QueryDWORDValue(L"none", number), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(number, 7u);
}

TEST_F(Registry, SeesWhatAnotherProcessWrote)
{
    key.Create(HKEY_CURRENT_USER, L"a");
    key.SetStringValue(L"mine", L"1");
    const pid_t other = inOtherProcess([] {
        CRegKey theirs;
        const bool good = theirs.Open(HKEY_CURRENT_USER, L"a") == ERROR_SUCCESS &&
                          textOf(theirs, L"mine") == L"1" &&
                          theirs.SetStringValue(L"theirs", L"2") == ERROR_SUCCESS;
        return good ? 0 : 1;
    });
    EXPECT_EQ(endOf(other), 0);
    EXPECT_EQ(textOf(key, L"theirs"), L"2");
    EXPECT_EQ(textOf(key, L"mine"), L"1");
}

TEST_F(Registry, TakesCallsFromSeveralThreads)
{
    key.Create(HKEY_CURRENT_USER, L"a");
    const auto work = [](int number) {
        const std::wstring name = L"v" + std::to_wstring(number);
        for (int i = 0; i < 20; ++i) {
            CRegKey own;
            own.Open(HKEY_CURRENT_USER, L"a");
            own.SetDWORDValue(name.c_str(), static_cast<std::uint32_t>(i));
        }
    };
    std::vector<std::thread> threads;
    for (int number = 0; number < 4; ++number)
        threads.emplace_back(work, number);
    for (std::thread& thread : threads)
        thread.join();
    for (const wchar_t* name : {L"v0", L"v1", L"v2", L"v3"}) {
        std::uint32_t value = 0;
        EXPECT_EQ(key.QueryDWORDValue(name, value), ERROR_SUCCESS);
        EXPECT_EQ(value, 19u);
    }
}

TEST_F(Registry, TellsThatItsFileWasBrokenAndGoesOn)
{
    key.Create(HKEY_CURRENT_USER, L"a");
    EXPECT_EQ(registryStatus(), SettingsStatus::Good);
    write(settings(), "nonsense");
    EXPECT_EQ(textOf(key, L"x"), L"status 1018");
    EXPECT_EQ(registryStatus(), SettingsStatus::Broken);
    EXPECT_EQ(contentOf(settings().string() + ".bad"), "nonsense");
    EXPECT_EQ(key.Create(HKEY_CURRENT_USER, L"a"), ERROR_SUCCESS);
}

TEST_F(Registry, RefusesWhatItCanNotKeep)
{
    write(home / "config", "a file where the folder should be");
    EXPECT_EQ(key.Create(HKEY_CURRENT_USER, L"a"), ERROR_REGISTRY_IO_FAILED);
    EXPECT_EQ(registryStatus(), SettingsStatus::Unwritable);
    EXPECT_EQ(key.Open(HKEY_CURRENT_USER, L"a"), ERROR_FILE_NOT_FOUND) << "and keeps nothing of it";
}

TEST(RegistryWithoutHome, RefusesEverything)
{
    const EnvironmentVariable config("XDG_CONFIG_HOME", nullptr);
    const EnvironmentVariable home("HOME", nullptr);
    CRegKey key;
    EXPECT_EQ(key.Create(HKEY_CURRENT_USER, L"a"), ERROR_REGISTRY_IO_FAILED);
    EXPECT_EQ(registryStatus(), SettingsStatus::Unwritable);
}

} // namespace
