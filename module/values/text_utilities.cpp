#include <values/text_utilities.h>

#include <algorithm>
#include <cassert>
#include <cwchar>
#include <locale>
#include <string_view>

namespace {

constexpr wchar_t kBlanks[] = L" ";
constexpr std::size_t kLongestExtension = 10;

int lowered(wchar_t character)
{
    return character >= L'A' && character <= L'Z' ? character - L'A' + L'a' : character;
}

void removeLeadingBlanks(wchar_t* text)
{
    const std::size_t start = std::wcsspn(text, kBlanks);
    std::wmemmove(text, text + start, std::wcslen(text + start) + 1);
}

void removeTrailingBlanks(wchar_t* text)
{
    const std::size_t last = std::wstring_view(text).find_last_not_of(kBlanks);
    text[last + 1] = L'\0'; // nothing but blanks: npos + 1 is 0
}

void removeInnerBlanks(wchar_t* text)
{
    const std::wstring_view whole(text);
    const std::size_t first = whole.find_first_not_of(kBlanks);
    if (first == whole.npos)
        return;
    wchar_t* const end = text + whole.size();
    wchar_t* const last = text + whole.find_last_not_of(kBlanks);
    wchar_t* const kept = std::remove(text + first, last, L' ');
    std::copy(last, end + 1, kept);
}

/// The dot that begins the extension, or the end of the text.
wchar_t* extensionOf(wchar_t* path)
{
    wchar_t* const dot = std::wcsrchr(path, L'.');
    const wchar_t* const folderEnd = std::wcsrchr(path, L'\\');
    if (dot && (!folderEnd || dot > folderEnd))
        return dot;
    return path + std::wcslen(path);
}

void copyBounded(wchar_t* target, std::wstring_view source, std::size_t size)
{
    if (size == 0)
        return;
    target[source.copy(target, size - 1)] = L'\0';
}

} // namespace

bool strisameW(const wchar_t* a, const wchar_t* b)
{
    return a && b && ::wcscasecmp(a, b) == 0;
}

bool equalLowered(std::wstring_view a, std::wstring_view b)
{
    if (a == b) // the usual case, and far cheaper to see than by lowering each character
        return true;
    const auto& classic = std::use_facet<std::ctype<wchar_t>>(std::locale::classic());
    const auto equal = [&](wchar_t x, wchar_t y) {
        return classic.tolower(x) == classic.tolower(y);
    };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), equal);
}

int strings_i_compare(const wchar_t* a, const wchar_t* b)
{
    if (!a || !b)
        return -1;
    while (*a && lowered(*a) == lowered(*b)) {
        ++a;
        ++b;
    }
    return lowered(*a) - lowered(*b);
}

void ic_trim(wchar_t* text, wchar_t* modes)
{
    assert(text && modes);
    if (!text || !modes)
        return;
    if (text[std::wcsspn(text, kBlanks)] == L'\0')
        *text = L'\0';
    for (const wchar_t* mode = modes; *mode; ++mode) {
        switch (lowered(*mode)) {
        case L'b':
            removeLeadingBlanks(text);
            break;
        case L'e':
            removeTrailingBlanks(text);
            break;
        case L'm':
            removeInnerBlanks(text);
            break;
        default:
            break;
        }
    }
}

void ic_getext(wchar_t* path, wchar_t* extension, unsigned long size)
{
    if (!extension)
        return;
    copyBounded(extension, L".", size);
    const std::wstring_view found = path ? extensionOf(path) : L"";
    if (found.empty() || size == 0)
        return;
    copyBounded(extension, found.substr(0, kLongestExtension), size);
    wchar_t everywhere[] = L"bme";
    ic_trim(extension, everywhere);
}

void ic_setext(wchar_t* path, wchar_t* extension)
{
    if (!path || !extension)
        return;
    wchar_t* cut = extensionOf(path);
    if (*extension && *extension != L'.')
        *cut++ = L'.';
    std::wcscpy(cut, extension);
}
