#include <values/real_text_forms.h>

#include <array>
#include <string_view>

#include <platform/locale.h>

namespace {

constexpr int kNoLeadingZero = 4;
constexpr int kMostCharacters = 512;

/// The user's habit as text, or `otherwise` where it cannot be found out.
std::wstring userHabit(unsigned long habit, const wchar_t* otherwise)
{
    std::array<wchar_t, 80> buffer;
    const int length =
        GetLocaleInfoW(LOCALE_USER_DEFAULT, habit, buffer.data(), static_cast<int>(buffer.size()));
    return length > 0 ? buffer.data() : otherwise;
}

/// Sizes of groups such as "3;2;0" as the digits 32. A list that does not end in 0 names its last
/// size once only, which the digits tell by a 0 at their end.
unsigned groupingNumber(std::wstring_view sizes)
{
    unsigned number = 0;
    wchar_t last = L'0';
    for (const wchar_t c : sizes) {
        if (c == L';')
            continue;
        if (c != L'0')
            number = number * 10 + static_cast<unsigned>(c - L'0');
        last = c;
    }
    return last == L'0' ? number : number * 10;
}

unsigned decimalsOf(const std::wstring& text)
{
    const std::size_t dot = text.find(L'.');
    return dot == std::wstring::npos ? 0 : static_cast<unsigned>(text.size() - dot - 1);
}

} // namespace

std::wstring inUserLocale(const std::wstring& text, int zeroSuppression)
{
    std::wstring decimal = userHabit(LOCALE_SDECIMAL, L".");
    std::wstring thousand = userHabit(LOCALE_STHOUSAND, L",");
    NUMBERFMTW format{};
    format.NumDigits = decimalsOf(text);
    format.LeadingZero = (zeroSuppression & kNoLeadingZero) ? 1 : 0; // the bit itself, as intended
    format.Grouping = groupingNumber(userHabit(LOCALE_SGROUPING, L"0"));
    format.lpDecimalSep = decimal.data();
    format.lpThousandSep = thousand.data();
    format.NegativeOrder = static_cast<unsigned>(userHabit(LOCALE_INEGNUMBER, L"1").front() - L'0');

    std::array<wchar_t, kMostCharacters> buffer;
    const int length = GetNumberFormatW(LOCALE_USER_DEFAULT, 0, text.c_str(), &format,
                                        buffer.data(), static_cast<int>(buffer.size()));
    return length > 0 ? std::wstring(buffer.data()) : text;
}
