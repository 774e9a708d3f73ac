#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

#include <platform/locale.h>
#include <runtime/number_text.h>

namespace {

constexpr unsigned kMostDecimals = 1074;
constexpr std::wstring_view kDigits = L"0123456789";

struct PlainNumber
{
    bool negative;
    std::wstring whole; ///< without leading zeros
    std::wstring decimals;
};

std::optional<PlainNumber> splitNumber(std::wstring_view text)
{
    PlainNumber number{text.starts_with(L'-'), {}, {}};
    text.remove_prefix(number.negative ? 1 : 0);
    const std::size_t dot = text.find(L'.');
    const std::wstring_view whole = text.substr(0, dot);
    const std::wstring_view decimals =
        dot == std::wstring_view::npos ? std::wstring_view() : text.substr(dot + 1);
    if (whole.empty() && decimals.empty())
        return std::nullopt;
    if (whole.find_first_not_of(kDigits) != std::wstring_view::npos ||
        decimals.find_first_not_of(kDigits) != std::wstring_view::npos)
        return std::nullopt;
    number.whole = whole.substr(std::min(whole.find_first_not_of(L'0'), whole.size()));
    number.decimals = decimals;
    return number;
}

/// Adds 1 to the last of the digits that the two texts hold together.
void increment(PlainNumber& number)
{
    for (std::wstring* digits : {&number.decimals, &number.whole}) {
        const std::size_t place = digits->find_last_not_of(L'9');
        const std::size_t nines = place == std::wstring::npos ? 0 : place + 1;
        std::fill(digits->begin() + static_cast<std::ptrdiff_t>(nines), digits->end(), L'0');
        if (place != std::wstring::npos) {
            ++(*digits)[place];
            return;
        }
    }
    number.whole.insert(0, 1, L'1');
}

void roundTo(PlainNumber& number, std::size_t count)
{
    const bool up = number.decimals.size() > count && number.decimals[count] >= L'5';
    number.decimals.resize(count, L'0');
    if (up)
        increment(number);
}

/// The sizes of the groups from the right, as the digits of `Grouping` tell them.
class GroupSizes
{
  public:
    explicit GroupSizes(unsigned grouping) : m_sizes(std::to_wstring(grouping)) {}

    /// The size of the next group; 0 when all that is left stays together.
    std::size_t next()
    {
        if (m_next < m_sizes.size())
            m_current = static_cast<std::size_t>(m_sizes[m_next++] - L'0');
        return m_current;
    }

  private:
    std::wstring m_sizes;
    std::size_t m_next = 0;
    std::size_t m_current = 0;
};

std::wstring grouped(std::wstring whole, unsigned grouping, const wchar_t* separator)
{
    GroupSizes sizes(grouping);
    std::size_t rest = whole.size();
    for (std::size_t size = sizes.next(); size != 0 && rest > size; size = sizes.next()) {
        rest -= size;
        whole.insert(rest, separator);
    }
    return whole;
}

std::wstring withSign(const std::wstring& number, unsigned order)
{
    switch (order) {
    case 0:
        return L"(" + number + L")";
    case 2:
        return L"- " + number;
    case 3:
        return number + L"-";
    case 4:
        return number + L" -";
    default:
        return L"-" + number;
    }
}

bool isUsable(const NUMBERFMTW* format)
{
    return format && format->NumDigits <= kMostDecimals && format->LeadingZero <= 1 &&
           format->NegativeOrder <= 4 && format->lpDecimalSep && format->lpThousandSep;
}

std::wstring formatNumber(PlainNumber number, const NUMBERFMTW& format)
{
    roundTo(number, format.NumDigits);
    const bool isZero =
        number.whole.empty() && number.decimals.find_first_not_of(L'0') == std::wstring::npos;
    if (number.whole.empty() && (format.LeadingZero == 1 || format.NumDigits == 0))
        number.whole = L"0";
    std::wstring text = grouped(number.whole, format.Grouping, format.lpThousandSep);
    if (format.NumDigits > 0)
        text += format.lpDecimalSep + number.decimals;
    return number.negative && !isZero ? withSign(text, format.NegativeOrder) : text;
}

} // namespace

int GetNumberFormatW(unsigned long locale, unsigned long flags, const wchar_t* value,
                     const NUMBERFMTW* format, wchar_t* buffer, int size)
{
    const bool known = locale == LOCALE_USER_DEFAULT || locale == LOCALE_INVARIANT;
    if (!known || flags != 0 || !value || !isUsable(format) || size < 0)
        return 0;
    const std::optional<PlainNumber> number = splitNumber(value);
    if (!number)
        return 0;
    const std::wstring text = formatNumber(*number, *format);
    const int needed = static_cast<int>(text.size()) + 1;
    if (size == 0)
        return needed;
    return kdCopyText(text, buffer, static_cast<unsigned long>(size)) ? needed : 0;
}
