#include <editor/command_line.h>

#include "line_writer.h"

#include <runtime/status.h>

#include <cstdarg>
#include <cwchar>
#include <locale.h>
#include <string>
#include <utility>

namespace {

constexpr std::size_t kFirstGuess = 256;
constexpr std::size_t kLongestText = std::size_t{1} << 20;

/// Keeps the process's locale away from this thread for the length of a scope.
class NeutralLocale
{
  public:
    NeutralLocale() : m_previous(uselocale(neutral())) {}
    ~NeutralLocale() { uselocale(m_previous); }
    NeutralLocale(const NeutralLocale&) = delete;
    NeutralLocale& operator=(const NeutralLocale&) = delete;

  private:
    static locale_t neutral()
    {
        static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
        return locale;
    }

    locale_t m_previous;
};

/// Fills in `format`. False if that is not possible.
bool formatText(std::wstring& text, const wchar_t* format, va_list arguments)
{
    const NeutralLocale neutral;
    // The formatter does not say how much room it needs, so it is tried with more and more.
    for (std::size_t room = kFirstGuess; room <= kLongestText; room *= 4) {
        text.resize(room);
        va_list again;
        va_copy(again, arguments);
        const int length = std::vswprintf(text.data(), room, format, again);
        va_end(again);
        if (length >= 0) {
            text.resize(static_cast<std::size_t>(length));
            return true;
        }
    }
    return false;
}

KdutPrintSink& installedSink()
{
    static KdutPrintSink sink;
    return sink;
}

void printToStandardError(std::wstring_view text)
{
    static LineWriter writer(stderr);
    writer.print(text);
}

} // namespace

int kdutPrintf(const wchar_t* format, ...)
{
    if (!format)
        return RTERROR;
    std::wstring text;
    va_list arguments;
    va_start(arguments, format);
    const bool isFilledIn = formatText(text, format, arguments);
    va_end(arguments);
    if (!isFilledIn)
        return RTERROR;
    if (const KdutPrintSink sink = installedSink())
        sink(text);
    else
        printToStandardError(text);
    return RTNORM;
}

KdutPrintSink kdutSetPrintSink(KdutPrintSink sink)
{
    return std::exchange(installedSink(), std::move(sink));
}
