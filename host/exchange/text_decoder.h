// Makes wide text of the bytes in a drawing file.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include <runtime/kd_string.h>

#include "code_pages.h"

namespace dxf {

class TextDecoder
{
  public:
    /// Reads ANSI_1252 until told otherwise.
    TextDecoder();
    /// One that reads the same, for use in another thread. What is left for later must have been
    /// decided.
    TextDecoder another() const;

    /// Reads the code page of that drawing name; false, with nothing changed, if it is not known.
    bool useCodePage(std::string_view drawingName);
    void useUtf8() { m_utf8 = true; }
    /// Has `areUtf8` asked once, before the first text with a byte above 127 is read: if it answers
    /// true, texts are UTF-8 whatever the code page. Most drawings have no such text, and to find
    /// out may take a look at the whole file.
    void decideLater(std::function<bool()> areUtf8) { m_areUtf8 = std::move(areUtf8); }
    /// Has that asked now, unless it was before.
    void decide() const;
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

    std::string m_pageName = "ANSI_1252";
    std::unique_ptr<CodePage> m_page;
    mutable std::array<std::unique_ptr<CodePage>, 6> m_escapePages; ///< by number, made when needed
    mutable bool m_utf8 = false;
    mutable std::function<bool()> m_areUtf8; ///< empty once it was asked
};

} // namespace dxf
