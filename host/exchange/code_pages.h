// Code pages: how the bytes of texts up to R2004 name characters.
#pragma once

#include <array>
#include <memory>
#include <string_view>
#include <vector>

namespace dxf {

constexpr wchar_t kReplacement = 0xFFFD; ///< stands for bytes that name no character

/// One code page. Bytes below 128 are ASCII in all of them, except as second half of a pair.
class CodePage
{
  public:
    /// By the name that drawings use, such as "ANSI_1252", without case; null if it is not known.
    static std::unique_ptr<CodePage> find(std::string_view drawingName);
    /// By the number of a `\M+n` escape, 1 to 5; null for others.
    static std::unique_ptr<CodePage> ofEscape(int number);

    /// True if two bytes may form one character.
    bool hasPairs() const { return m_hasPairs; }
    wchar_t single(unsigned char byte) const { return m_singles[byte]; }
    /// The character of a pair, or `kReplacement`.
    wchar_t pair(unsigned char lead, unsigned char trail) const;

    /// Appends the characters of `bytes`. Never fails.
    void decode(std::string_view bytes, std::wstring& text) const;

  private:
    class Converter;

    CodePage(const char* encoding, bool hasPairs);

    std::shared_ptr<Converter> m_converter; ///< for pairs alone
    std::array<wchar_t, 256> m_singles{};
    mutable std::vector<char16_t> m_pairs; ///< what was asked for so far; 0 is not yet known
    bool m_hasPairs;
};

} // namespace dxf
