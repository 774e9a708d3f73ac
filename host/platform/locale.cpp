#include <platform/locale.h>

#include <climits>
#include <clocale>
#include <cwchar>
#include <langinfo.h>
#include <locale.h>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>

#include <runtime/number_text.h>

namespace {

struct LocaleDeleter
{
    void operator()(locale_t locale) const { freelocale(locale); }
};
using Locale = std::unique_ptr<std::remove_pointer_t<locale_t>, LocaleDeleter>;

/// Makes this thread use a locale for as long as the object lives.
class LocaleInUse
{
  public:
    explicit LocaleInUse(locale_t locale) : m_previous(uselocale(locale)) {}
    ~LocaleInUse() { uselocale(m_previous); }
    LocaleInUse(const LocaleInUse&) = delete;
    LocaleInUse& operator=(const LocaleInUse&) = delete;

  private:
    locale_t m_previous;
};

/// Null if the locale is unknown, or the user's is not installed.
Locale openLocale(unsigned long locale)
{
    if (locale != LOCALE_USER_DEFAULT && locale != LOCALE_INVARIANT)
        return nullptr;
    const char* name = locale == LOCALE_USER_DEFAULT ? "" : "C";
    // The characters of the separators need the matching LC_CTYPE to be understood.
    return Locale(newlocale(LC_NUMERIC_MASK | LC_CTYPE_MASK, name, nullptr));
}

std::wstring wideText(const char* text, locale_t locale)
{
    const LocaleInUse inUse(locale);
    std::mbstate_t state{};
    const char* source = text;
    const std::size_t length = std::mbsrtowcs(nullptr, &source, 0, &state);
    if (length == static_cast<std::size_t>(-1))
        return {};
    std::wstring wide(length, L'\0');
    std::mbsrtowcs(wide.data(), &source, length, &state);
    return wide;
}

/// Sizes such as "\3\2", the last one repeating, as a text such as "3;2;0".
std::wstring groupingText(const char* sizes)
{
    std::wstring text;
    char last = 0;
    for (; *sizes != 0 && *sizes != CHAR_MAX && *sizes > 0; ++sizes) {
        if (*sizes != last)
            text += std::to_wstring(*sizes) + L";";
        last = *sizes;
    }
    const bool repeats = *sizes == 0;
    if (repeats || text.empty())
        return text + L"0";
    text.pop_back();
    return text;
}

std::optional<std::wstring> habitText(locale_t locale, unsigned long habit)
{
    switch (habit) {
    case LOCALE_SDECIMAL:
        return wideText(nl_langinfo_l(RADIXCHAR, locale), locale);
    case LOCALE_STHOUSAND:
        return wideText(nl_langinfo_l(THOUSEP, locale), locale);
    case LOCALE_SGROUPING:
        return groupingText(nl_langinfo_l(GROUPING, locale));
    case LOCALE_INEGNUMBER:
        return L"1"; // all locales of this platform print the sign in front
    default:
        return std::nullopt;
    }
}

} // namespace

int GetLocaleInfoW(unsigned long locale, unsigned long habit, wchar_t* buffer, int size)
{
    const Locale opened = openLocale(locale);
    if (!opened)
        return 0;
    const std::optional<std::wstring> text = habitText(opened.get(), habit);
    if (!text || size < 0)
        return 0;
    const int needed = static_cast<int>(text->size()) + 1;
    if (size == 0)
        return needed;
    return kdCopyText(*text, buffer, static_cast<unsigned long>(size)) ? needed : 0;
}
