/// Takes arbitrary bytes for the file of the registry. Keys and values are then opened, read, made
/// and deleted as the module does it; what was written is found, and what was deleted is not.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include <platform/registry.h>

#include "scratch_home.h"

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

/// Asks for a value of any kind, with room for some characters only.
void read(HKEY key, const wchar_t* name)
{
    alignas(wchar_t) unsigned char bytes[64];
    unsigned size = sizeof bytes;
    unsigned type = 0;
    const long status = RegQueryValueExW(key, name, nullptr, &type, bytes, &size);
    require(status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND || status == ERROR_MORE_DATA);
    require(status != ERROR_SUCCESS || size <= sizeof bytes);
    require(status != ERROR_MORE_DATA || size > sizeof bytes);
}

void readWhatIsThere()
{
    for (const wchar_t* name :
         {L"Software\\KwQselect\\Profiles", L"Software\\KwQselect\\Profiles\\Default\\General",
          L"A", L"A\\B"}) {
        CRegKey key;
        const long status = key.Open(HKEY_CURRENT_USER, name, KEY_READ);
        require(status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND);
        if (status != ERROR_SUCCESS)
            continue;
        for (const wchar_t* value : {L"Current", L"SAVEFILEPATH", L"", L"x"})
            read(key, value);
    }
}

void writeAndDelete()
{
    CRegKey key;
    require(key.Create(HKEY_CURRENT_USER, L"A\\New\\Key") == ERROR_SUCCESS);
    require(key.SetDWORDValue(L"Number", 0xFFFFFFFE) == ERROR_SUCCESS);
    std::uint32_t number = 0;
    require(key.QueryDWORDValue(L"Number", number) == ERROR_SUCCESS && number == 0xFFFFFFFE);
    require(key.SetStringValue(L"Number", L"text") == ERROR_SUCCESS);
    require(key.QueryDWORDValue(L"Number", number) == ERROR_INVALID_PARAMETER);
    require(key.DeleteValue(L"Number") == ERROR_SUCCESS);
    require(key.QueryDWORDValue(L"Number", number) == ERROR_FILE_NOT_FOUND);
    CRegKey root;
    require(root.Open(HKEY_CURRENT_USER, L"") == ERROR_SUCCESS);
    require(root.RecurseDeleteKey(L"A") == ERROR_SUCCESS);
    require(key.SetDWORDValue(L"Number", 1) == ERROR_KEY_DELETED);
    require(root.Open(HKEY_CURRENT_USER, L"A\\New") == ERROR_FILE_NOT_FOUND);
    require(registryStatus() == SettingsStatus::Good);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const ScratchHome home;
    home.put("registry.conf", {reinterpret_cast<const char*>(data), size});
    readWhatIsThere();
    writeAndDelete();
    return 0;
}
