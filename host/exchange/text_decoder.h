// Makes wide text of the bytes in a drawing file.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include <runtime/kd_string.h>

#include "code_pages.h"

namespace dxf {

class TextDecoder
{
  public:
    /// Reads ANSI_1252 until told otherwise.
    TextDecoder();

    /// Reads the code page of that drawing name; false, with nothing changed, if it is not known.
    bool useCodePage(std::string_view drawingName);
    void useUtf8() { m_utf8 = true; }
    const CodePage& codePage() const { return *m_page; }

    /// Of a longer text only so many bytes are read: a damaged file may be one single line.
    static constexpr std::size_t kLongestText = 1 << 20;

    /// The text of a group: bytes by the code page, then the escapes `^J`, `\U+XXXX`, `\M+nXXXX`.
    KdString decode(std::string_view bytes) const;
    std::wstring decodeWide(std::string_view bytes) const;

  private:
    wchar_t pairOfEscape(int page, unsigned pair) const;
    bool takeUnicodeEscape(std::wstring_view text, std::size_t& at, std::wstring& result) const;
    bool takePageEscape(std::wstring_view text, std::size_t& at, std::wstring& result) const;
    std::wstring withoutEscapes(std::wstring_view text) const;

    std::unique_ptr<CodePage> m_page;
    mutable std::array<std::unique_ptr<CodePage>, 6> m_escapePages; ///< by number, made when needed
    bool m_utf8 = false;
};

} // namespace dxf
