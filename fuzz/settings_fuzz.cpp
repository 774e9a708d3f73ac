/// Takes arbitrary bytes for the file of the user's settings. It is read whole, or it is put aside
/// as it was and the settings begin empty; either way they can be read as the dialog reads them,
/// changed, and found again.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include <platform/config.h>
#include <platform/settings_file.h>

#include "scratch_home.h"

namespace {

constexpr const char* kFile = "interface.settings";
constexpr const wchar_t* kNew = L"a name that no seed has";

void require(bool holds)
{
    if (!holds)
        std::abort();
}

void requireSame(const SettingsFile& a, const SettingsFile& b)
{
    require(a.names() == b.names());
    for (const std::wstring& name : a.names()) {
        require(a.get(name) && b.get(name));
        require(*a.get(name) == *b.get(name));
    }
}

void readAsTheDialogDoes()
{
    for (const wchar_t* name : {L"Type", L"Properties", L"Operators", L"Exclude", L"VarColor"}) {
        KdadVariant value;
        const std::wstring key = std::wstring(L"UserInterfaceSettings/KwQSelect/") + name;
        const bool found = kdadConfig().getValue(KwdrawConfig::kUserInterface, key.c_str(), value);
        require(found == (value.type() != KdadVariant::kEmpty));
        require(value.type() == KdadVariant::kText || *value.text() == L'\0');
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const ScratchHome home;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    home.put(kFile, bytes);
    SettingsFile first(home.folder() / kFile);
    const SettingsStatus status = first.load();
    require(status == SettingsStatus::Good || status == SettingsStatus::Broken);
    if (status == SettingsStatus::Broken) {
        require(first.names().empty());
        require(home.get("interface.settings.bad") == bytes);
    }
    readAsTheDialogDoes();

    first.set(kNew, std::wstring(L"\n\"\\\x7F"));
    require(first.save() == SettingsStatus::Good);
    SettingsFile second(home.folder() / kFile);
    require(second.load() == SettingsStatus::Good);
    requireSame(first, second);
    require(second.remove(kNew));
    require(second.save() == SettingsStatus::Good);
    return 0;
}
