/// Feeds any text and any pattern to the wildcard match; the first line is the text. What follows
/// from the rules for every text must hold, and patterns without classes must match as a matcher of
/// another make says.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include <editor/wildcard.h>
#include <runtime/status.h>

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

bool matches(const std::wstring& text, const std::wstring& pattern)
{
    const int answer = kdutWcMatch(text.c_str(), pattern.c_str());
    require(answer == RTNORM || answer == RTERROR);
    return answer == RTNORM;
}

/// The pattern of exactly that text: a back quote before each character.
std::wstring exact(const std::wstring& text)
{
    std::wstring pattern;
    for (const wchar_t c : text)
        pattern += {L'`', c};
    return pattern;
}

/// A table of which part of the text each part of the pattern matches, for patterns of characters,
/// `?` and `*`.
bool matchesByTable(const std::wstring& text, const std::wstring& pattern)
{
    std::vector<char> reached(text.size() + 1);
    reached[0] = true;
    for (const wchar_t element : pattern) {
        std::vector<char> next(text.size() + 1);
        for (std::size_t at = 0; at <= text.size(); ++at) {
            if (element == L'*')
                next[at] = reached[at] || (at > 0 && next[at - 1]);
            else
                next[at] =
                    at > 0 && reached[at - 1] && (element == L'?' || element == text[at - 1]);
        }
        reached = next;
    }
    return reached[text.size()];
}

void compareWithTable(const std::wstring& text, const std::wstring& pattern)
{
    constexpr std::size_t kLongest = 2000; // the table is their product
    if (text.size() > kLongest || pattern.size() > kLongest ||
        pattern.find_first_of(L"~#@.,[]`") != std::wstring::npos)
        return;
    require(matches(text, pattern) == matchesByTable(text, pattern));
    require(matches(text, L"~" + pattern) != matchesByTable(text, pattern));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::wstring all(data, data + size);
    const std::wstring whole = all.substr(0, all.find(L'\0'));
    const std::size_t end = whole.find(L'\n');
    const std::wstring text = whole.substr(0, end);
    const std::wstring pattern = end == std::wstring::npos ? text : whole.substr(end + 1);
    matches(text, pattern);
    matches(text, L"~" + pattern);
    require(matches(text, L"*"));
    require(matches(text, exact(text)));
    require(matches(text, exact(text) + L"," + pattern));
    require(!matches(text + L"x", exact(text)));
    compareWithTable(text, pattern);
    return 0;
}
