/// The text class of the dialog side: a standard string with a few conveniences.
#pragma once

#include <string>
#include <string_view>

/// Behaves as `std::basic_string`; null pointers count as empty texts.
template <class Character>
class CStdStr : public std::basic_string<Character>
{
    using Base = std::basic_string<Character>;

  public:
    CStdStr() = default;
    CStdStr(const Character* text) : Base(text ? text : kEmpty) {}
    CStdStr(const Base& text) : Base(text) {}
    CStdStr(std::basic_string_view<Character> text) : Base(text) {}

    operator const Character*() const { return this->c_str(); }
    bool IsEmpty() const { return this->empty(); }

  private:
    static constexpr Character kEmpty[1] = {};
};
