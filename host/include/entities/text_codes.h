/// The codes inside texts, read step by step.
#pragma once

#include <cstdint>
#include <string_view>

#include <runtime/export.h>

/// A `%%` code, which texts of one line and of several have in common.
struct TextCode
{
    wchar_t letter = 0;     ///< the letter that it stands for; 0 for a switch
    wchar_t lineSwitch = 0; ///< `u`, `o`, `k`: a line below, above, through the letters, on or off
};

/// Takes the code at `at` and moves on behind it. False, with nothing changed, if there is none.
KW_EXPORT bool kddbTakeTextCode(std::wstring_view text, std::size_t& at, TextCode& code);

/// A piece of a text of several lines.
struct MTextToken
{
    enum class Kind : std::uint8_t
    {
        Letter,     ///< `letter`, which may be a tab or the blank that does not break (U+00A0)
        Paragraph,  ///< the end of a paragraph
        Column,     ///< the end of a column
        Break,      ///< what follows stands below the line of a dimension
        Open,       ///< the begin of a group
        Close,      ///< its end: the look before the group comes back. May be one too many
        LineSwitch, ///< `letter`: `L`, `O`, `K` turn the line on, small letters turn it off
        LineToggle, ///< `letter`: `u`, `o`, `k` turn the line on if it is off, else off
        Code,       ///< `letter`: one of `AHWTQCcFfp`, with its `argument`
        Stack,      ///< `argument`: rows above each other, a `/`, `#` or `^` between them
    };
    Kind kind = Kind::Letter;
    wchar_t letter = 0;
    std::wstring_view argument; ///< in the text that is read
};

/// Takes a text of several lines apart. What is no code stands for its letters, so any text is
/// read, in a time that grows with its length.
class KW_EXPORT MTextTokens
{
  public:
    /// @param text  must outlive the tokens
    explicit MTextTokens(std::wstring_view text);

    /// Gives the next token; false, with nothing changed, at the end.
    bool next(MTextToken& token);

  private:
    bool takeSign(MTextToken& token);
    void takeCode(MTextToken& token);
    void takeArgumentCode(wchar_t code, MTextToken& token);
    bool takeArgument(bool isStack, std::wstring_view& argument);

    std::wstring_view m_text;
    std::size_t m_at = 0;
    std::size_t m_lastSemicolon; ///< so that damaged texts are not searched again and again
    bool m_stacksEnd = true;     ///< false once a stack had no end
};
