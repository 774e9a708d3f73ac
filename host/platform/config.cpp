#include <platform/config.h>

#include <platform/message_box.h>
#include <platform/settings_file.h>
#include <runtime/utf8.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <cwchar>
#include <optional>
#include <utility>
#include <variant>

namespace {

namespace fs = std::filesystem;

constexpr int kIntegerBytes = sizeof(std::int32_t);
constexpr int kCharacterBytes = sizeof(wchar_t);

bool isSizeOf(KdadVariant::VarType type, int bytes)
{
    switch (type) {
    case KdadVariant::kInteger:
        return bytes == kIntegerBytes;
    case KdadVariant::kText:
        return bytes >= kCharacterBytes && bytes % kCharacterBytes == 0;
    default:
        return false;
    }
}

KdadVariant variantOf(const SettingsFile::Value& value)
{
    if (const auto* number = std::get_if<std::int32_t>(&value))
        return KdadVariant::ofInteger(*number);
    return KdadVariant::ofText(std::get<std::wstring>(value).c_str());
}

std::optional<SettingsFile::Value> settingOf(const KdadVariant& value)
{
    switch (value.type()) {
    case KdadVariant::kInteger:
        return SettingsFile::Value(std::int32_t{value.integerOr(0)});
    case KdadVariant::kText:
        return SettingsFile::Value(std::wstring(value.text()));
    default:
        return std::nullopt;
    }
}

} // namespace

KdadVariant::KdadVariant(const KdadVariant& other)
{
    if (allocateValue(other.m_type, other.m_length))
        std::memcpy(m_data.get(), other.m_data.get(), static_cast<std::size_t>(m_length));
}

KdadVariant::KdadVariant(KdadVariant&& other) noexcept
    : m_type(std::exchange(other.m_type, kEmpty)),
      m_length(std::exchange(other.m_length, 0)),
      m_data(std::move(other.m_data))
{
}

KdadVariant& KdadVariant::operator=(KdadVariant other) noexcept
{
    std::swap(m_type, other.m_type);
    std::swap(m_length, other.m_length);
    std::swap(m_data, other.m_data);
    return *this;
}

bool KdadVariant::allocateValue(VarType type, int bytes)
{
    freeValue();
    if (!isSizeOf(type, bytes))
        return false;
    m_data = std::make_unique<unsigned char[]>(static_cast<std::size_t>(bytes));
    m_type = type;
    m_length = bytes;
    return true;
}

void KdadVariant::freeValue()
{
    m_data.reset();
    m_type = kEmpty;
    m_length = 0;
}

KdadVariant KdadVariant::ofInteger(int value)
{
    KdadVariant made;
    made.allocateValue(kInteger, kIntegerBytes);
    const std::int32_t number = value;
    std::memcpy(made.data(), &number, sizeof(number));
    return made;
}

KdadVariant KdadVariant::ofText(const wchar_t* text)
{
    const wchar_t* const characters = text ? text : L"";
    const int bytes = kCharacterBytes * (static_cast<int>(std::wcslen(characters)) + 1);
    KdadVariant made;
    made.allocateValue(kText, bytes);
    std::memcpy(made.data(), characters, static_cast<std::size_t>(bytes));
    return made;
}

int KdadVariant::integerOr(int otherwise) const
{
    if (m_type != kInteger)
        return otherwise;
    std::int32_t number = 0;
    std::memcpy(&number, m_data.get(), sizeof(number));
    return number;
}

const wchar_t* KdadVariant::text() const
{
    return m_type == kText ? static_cast<const wchar_t*>(data()) : L"";
}

/// The file, which follows the environment of the process.
struct KwdrawConfig::Store
{
    fs::path folder = SettingsFile::standardFolder();
    SettingsFile file{folder.empty() ? folder : folder / "interface.settings"};
    SettingsStatus loaded = SettingsStatus::Good;
    SettingsStatus saved = SettingsStatus::Good;

    void load() { tell(file.load(), loaded); }
    bool save()
    {
        tell(file.save(), saved);
        return saved == SettingsStatus::Good;
    }
    /// Tells the user of a fault, once as long as it lasts.
    void tell(SettingsStatus status, SettingsStatus& before) const
    {
        const bool isNew = status != loaded && status != saved;
        if (isNew && status != SettingsStatus::Good)
            AfxMessageBox(sentenceOf(status).c_str(), 0, 0);
        before = status;
    }
    std::wstring sentenceOf(SettingsStatus status) const
    {
        const std::wstring place = kdFromUtf8(file.path().string());
        return settingsStatusText(status) + (place.empty() ? place : L'\n' + place);
    }
};

KwdrawConfig::KwdrawConfig() : m_store(std::make_unique<Store>()) {}

KwdrawConfig::~KwdrawConfig() = default;

KwdrawConfig::Store& KwdrawConfig::store() const
{
    if (m_store->folder != SettingsFile::standardFolder())
        *m_store = Store();
    return *m_store;
}

bool KwdrawConfig::getValue(Path path, const wchar_t* key, KdadVariant& value) const
{
    value.freeValue();
    if (path != kUserInterface || !key)
        return false;
    store().load();
    const SettingsFile::Value* found = m_store->file.get(key);
    if (!found)
        return false;
    value = variantOf(*found);
    return true;
}

bool KwdrawConfig::setValue(Path path, const wchar_t* key, const KdadVariant& value)
{
    std::optional<SettingsFile::Value> setting = settingOf(value);
    if (path != kUserInterface || !key || !setting)
        return false;
    store().file.set(key, std::move(*setting));
    return m_openUpdates > 0 || m_store->save();
}

KwdrawConfig::Update::Update(KwdrawConfig& config) : m_config(config)
{
    ++m_config.m_openUpdates;
}

KwdrawConfig::Update::~Update()
{
    if (--m_config.m_openUpdates == 0)
        m_config.store().save();
}

KwdrawConfig& kdadConfig()
{
    static KwdrawConfig config;
    return config;
}
