#include <values/resource_string.h>

#include <algorithm>
#include <string>
#include <string_view>

#include <platform/message_box.h>
#include <platform/safe_text.h>

namespace {

constexpr unsigned int kStopIcon = 16;
constexpr std::size_t kLongestTypeName = 1023;

/// The resource's own text, which may lack a terminator; empty if there is none.
std::wstring_view findText(HINSTANCE module, unsigned int id)
{
    const wchar_t* text = nullptr;
    // With size 0 the buffer argument stands for the place of a pointer.
    const int length = LoadStringW(module, id, reinterpret_cast<wchar_t*>(&text), 0);
    if (length <= 0 || !text)
        return {};
    return {text, static_cast<std::size_t>(length)};
}

} // namespace

__ResourceString::operator const wchar_t*()
{
    if (m_text)
        return m_text;
    m_inline[0] = L'\0';
    const HINSTANCE module = m_module ? m_module : AfxGetResourceHandle();
    const std::wstring_view found = findText(module, static_cast<unsigned int>(m_id));
    if (!found.empty())
        return store(found.data(), static_cast<int>(found.size()));
    if (m_defaultText)
        return complain();
    return m_text = m_inline;
}

const wchar_t* __ResourceString::store(const wchar_t* text, int length)
{
    const int size = length + 1;
    m_text = size <= kInlineLimit ? m_inline : new wchar_t[static_cast<std::size_t>(size)];
    wcsncpy_s(m_text, size, text, static_cast<unsigned long>(length));
    return m_text;
}

const wchar_t* __ResourceString::complain() const
{
    const std::wstring message = L"The string id " + std::to_wstring(m_id) + L" \"" +
                                 m_defaultText + L"\" was not found in the resource file.";
    AfxMessageBox(message.c_str(), kStopIcon, 0);
    return m_defaultText;
}

void __ResourceString::release()
{
    if (!m_text || m_text == m_inline)
        return;
    *m_text = L'\0';
    delete[] m_text;
}

const wchar_t* __GetResourceString(int id, const wchar_t* defaultText, int* length,
                                   HINSTANCE module)
{
    const std::wstring_view found =
        module ? findText(module, static_cast<unsigned int>(id)) : std::wstring_view();
    if (length)
        *length = static_cast<int>(found.size());
    return found.empty() ? defaultText : found.data();
}

CStdStr<wchar_t> GetOPMStr(unsigned int id)
{
    static HINSTANCE library = nullptr;
    if (!library)
        library = LoadResourceDll(L"KrxOPMRes.dll");
    if (!library)
        return {};
    const std::wstring_view text = findText(library, id).substr(0, kLongestTypeName);
    return text.substr(0, text.find(L'\0'));
}
