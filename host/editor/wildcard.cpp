#include <editor/wildcard.h>

#include <runtime/status.h>

#include <QChar>

namespace {

bool isDigit(wchar_t c)
{
    return QChar::isDigit(static_cast<uint>(c));
}

bool isLetter(wchar_t c)
{
    return QChar::isLetter(static_cast<uint>(c));
}

/// A pattern, and the way through it element by element.
class Pattern
{
  public:
    explicit Pattern(const wchar_t* begin) : m_begin(begin)
    {
        for (const wchar_t* at = begin; *at; at = afterLiteral(at))
            if (*at == L']')
                m_lastClosing = at;
    }

    bool matches(const wchar_t* text) const
    {
        const wchar_t* alternative = m_begin;
        for (;;) {
            const wchar_t* end = endOfAlternative(alternative);
            const bool isNegated = *alternative == L'~';
            if (matchesWhole(text, alternative + isNegated, end) != isNegated)
                return true;
            if (!*end)
                return false;
            alternative = end + 1;
        }
    }

  private:
    /// The place behind one character, or behind a back quote and the character it protects.
    static const wchar_t* afterLiteral(const wchar_t* at)
    {
        return *at == L'`' && at[1] ? at + 2 : at + 1;
    }

    static wchar_t literal(const wchar_t* at) { return *at == L'`' && at[1] ? at[1] : *at; }

    // Any closing bracket further on ends the class, so the last one of the pattern decides.
    bool beginsClass(const wchar_t* at) const { return *at == L'[' && at < m_lastClosing; }

    const wchar_t* afterElement(const wchar_t* at) const
    {
        if (!beginsClass(at))
            return afterLiteral(at);
        for (++at; *at != L']';)
            at = afterLiteral(at);
        return at + 1;
    }

    const wchar_t* endOfAlternative(const wchar_t* at) const
    {
        while (*at && *at != L',')
            at = afterElement(at);
        return at;
    }

    /// Whether the class that begins at `at` holds `c`.
    static bool classHolds(const wchar_t* at, wchar_t c)
    {
        ++at;
        const bool isNegated = *at == L'~';
        if (isNegated)
            ++at;
        bool found = false;
        while (*at != L']') {
            const wchar_t first = literal(at);
            wchar_t last = first;
            at = afterLiteral(at);
            if (*at == L'-' && at[1] != L']') {
                last = literal(at + 1);
                at = afterLiteral(at + 1);
            }
            found = found || (first <= c && c <= last);
        }
        return found != isNegated;
    }

    bool elementMatches(const wchar_t* at, wchar_t c) const
    {
        switch (*at) {
        case L'?':
            return true;
        case L'#':
            return isDigit(c);
        case L'@':
            return isLetter(c);
        case L'.':
            return !isDigit(c) && !isLetter(c);
        default:
            return beginsClass(at) ? classHolds(at, c) : literal(at) == c;
        }
    }

    /// Only the last `*` is ever tried anew: what the earlier ones took can stay as it is, since
    /// any later place for them would leave less text for the rest.
    bool matchesWhole(const wchar_t* text, const wchar_t* at, const wchar_t* end) const
    {
        const wchar_t* afterStar = nullptr;
        const wchar_t* textAtStar = nullptr;
        while (*text) {
            if (at != end && *at == L'*') {
                afterStar = ++at;
                textAtStar = text;
                if (at == end)
                    return true;
            } else if (at != end && elementMatches(at, *text)) {
                at = afterElement(at);
                ++text;
            } else if (afterStar) {
                at = afterStar;
                text = ++textAtStar;
            } else {
                return false;
            }
        }
        while (at != end && *at == L'*')
            ++at;
        return at == end;
    }

    const wchar_t* m_begin;
    const wchar_t* m_lastClosing = nullptr;
};

} // namespace

int kdutWcMatch(const wchar_t* text, const wchar_t* pattern)
{
    if (!text || !pattern)
        return RTERROR;
    return Pattern(pattern).matches(text) ? RTNORM : RTERROR;
}
