/// Texts by number from the resource libraries, each with a default text beside its number.
#pragma once

#include <platform/resources.h>
#include <runtime/std_str.h>

/// A text of the module, resolved when it is first read. Lives for one expression as a rule; short
/// texts cost no allocation.
class __ResourceString
{
  public:
    /// Loads nothing yet.
    /// @param defaultText  used when the library lacks `id`; must outlive the object; may be null
    /// @param module       the library, or null for the one that is current when the text is read
    __ResourceString(int id, const wchar_t* defaultText, HINSTANCE module = nullptr)
        : m_defaultText(defaultText), m_module(module), m_id(id)
    {
    }
    ~__ResourceString() { release(); }
    __ResourceString(const __ResourceString&) = delete;
    __ResourceString& operator=(const __ResourceString&) = delete;

    /// The text, valid as long as the object. A missing one is complained about in a message box at
    /// each conversion and replaced by the default text; without a default text it is empty and
    /// nothing is said.
    operator const wchar_t*();

  private:
    /// Texts up to this length, terminator included, need no heap block.
    static constexpr int kInlineLimit = 254;

    const wchar_t* store(const wchar_t* text, int length);
    const wchar_t* complain() const;
    void release();

    const wchar_t* m_defaultText;
    HINSTANCE m_module;
    int m_id;
    wchar_t* m_text = nullptr; ///< the inline buffer or a heap block; null until resolved
    wchar_t m_inline[256];
};

/// A look-up without an object and without complaint.
/// @param length  receives the length of the resource's text, 0 if it is missing; may be null
/// @param module  the library; null finds nothing, the current library included
/// @return        the resource's own text, which has no guaranteed terminator, or `defaultText`
const wchar_t* __GetResourceString(int id, const wchar_t* defaultText, int* length,
                                   HINSTANCE module);

/// A text of the library of type names, cut to 1023 characters and at its first terminator. Empty
/// if the number or the library is missing; a library that failed to load is tried again.
CStdStr<wchar_t> GetOPMStr(unsigned int id);
