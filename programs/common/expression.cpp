#include <common/expression.h>

#include <algorithm>
#include <optional>

#include <runtime/kd_string.h>
#include <runtime/utf8.h>

namespace {

using Kind = Expression::Kind;

constexpr int kDeepest = 200; ///< brackets and "not" inside each other

bool isBlank(wchar_t c)
{
    return c == L' ' || c == L'\t' || c == L'\n' || c == L'\r';
}

std::wstring_view trimmed(std::wstring_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

bool equalWithoutCase(std::wstring_view a, std::wstring_view b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](wchar_t x, wchar_t y) { return kdFoldCase(x) == kdFoldCase(y); });
}

/// The operator that begins at a place, if one does.
std::optional<std::wstring_view> operatorAt(std::wstring_view text, std::size_t place)
{
    const std::wstring_view rest = text.substr(place);
    for (const std::wstring_view op : {L"<>", L"=", L">", L"<"}) {
        if (rest.starts_with(op))
            return rest.substr(0, op.size());
    }
    const bool blankBefore = place > 0 && isBlank(text[place - 1]);
    const bool blankBehind = rest.size() > 1 && isBlank(rest[1]);
    if (rest.starts_with(L'*') && blankBefore && blankBehind)
        return rest.substr(0, 1);
    return std::nullopt;
}

std::wstring inQuotes(std::wstring_view text)
{
    std::wstring quoted = L"\"";
    for (const wchar_t c : text) {
        if (c == L'"')
            quoted += c;
        quoted += c;
    }
    return quoted + L'"';
}

class Reader
{
  public:
    explicit Reader(std::wstring_view text) : m_text(text) {}

    std::variant<Expression, ExpressionProblem> read()
    {
        Expression expression;
        if (either(expression) && (skipBlanks(), m_place < m_text.size()))
            fail(m_text[m_place] == L')' ? "there is no bracket that this one closes"
                                         : "here \"and\", \"or\" or the end is expected");
        if (m_problem)
            return *m_problem;
        return expression;
    }

  private:
    bool fail(std::string reason) { return failAt(m_place, std::move(reason)); }
    bool failAt(std::size_t place, std::string reason)
    {
        if (!m_problem)
            m_problem = ExpressionProblem{place, std::move(reason)};
        return false;
    }

    bool either(Expression& result) { return joined(result, Kind::Or, L"or", &Reader::both); }
    bool both(Expression& result) { return joined(result, Kind::And, L"and", &Reader::single); }

    /// One or more parts with a word between them.
    bool joined(Expression& result, Kind kind, std::wstring_view word,
                bool (Reader::*part)(Expression&))
    {
        std::vector<Expression> parts;
        do {
            if (!(this->*part)(parts.emplace_back()))
                return false;
        } while (takeWord(word));
        if (parts.size() > 1) {
            result.kind = kind;
            result.parts = std::move(parts);
        } else {
            result = std::move(parts.front());
        }
        return true;
    }

    bool single(Expression& result)
    {
        if (++m_depth > kDeepest)
            return fail("the brackets go too deep");
        const bool done = takeWord(L"not") ? negated(result) : primary(result);
        --m_depth;
        return done;
    }

    bool negated(Expression& result)
    {
        result.kind = Kind::Not;
        result.parts.resize(1);
        return single(result.parts.front());
    }

    bool primary(Expression& result)
    {
        skipBlanks();
        if (m_place < m_text.size() && m_text[m_place] == L'(')
            return bracketed(result);
        if (m_place < m_text.size() && m_text[m_place] == L'@')
            return named(result);
        return comparison(result.comparison);
    }

    bool bracketed(Expression& result)
    {
        const std::size_t opening = m_place++;
        if (!either(result))
            return false;
        skipBlanks();
        if (m_place >= m_text.size() || m_text[m_place] != L')')
            return failAt(opening, "this bracket is never closed");
        ++m_place;
        return true;
    }

    bool named(Expression& result)
    {
        result.kind = Kind::Named;
        result.place = ++m_place;
        while (m_place < m_text.size() && !isBlank(m_text[m_place]) && m_text[m_place] != L'(' &&
               m_text[m_place] != L')')
            result.name += m_text[m_place++];
        return !result.name.empty() || fail("the name of a filter is expected behind \"@\"");
    }

    bool comparison(Comparison& result)
    {
        skipBlanks();
        result.place = m_place;
        if (!subject(result.subject))
            return false;
        const auto op = m_place < m_text.size() ? operatorAt(m_text, m_place) : std::nullopt;
        if (!op)
            return true;
        result.op = *op;
        m_place += op->size();
        skipBlanks();
        result.valuePlace = m_place;
        return value(result.value);
    }

    /// The words up to an operator, a joining word, a bracket or the end.
    bool subject(std::vector<std::wstring>& pieces)
    {
        const std::size_t begin = m_place;
        std::wstring piece;
        bool isQuoted = false;
        const auto endPiece = [&] {
            pieces.emplace_back(isQuoted ? piece : trimmed(piece));
            piece.clear();
            isQuoted = false;
        };
        while (!atEndOfSubject()) {
            const wchar_t c = m_text[m_place];
            if (c == L'"' && trimmed(piece).empty()) {
                piece.clear();
                isQuoted = true;
                if (!quoted(piece))
                    return false;
            } else if (c == L':') {
                endPiece();
                ++m_place;
            } else if (isQuoted && !isBlank(c)) {
                return fail("behind a quoted name a colon or an operator is expected");
            } else {
                if (!isQuoted)
                    piece += c;
                ++m_place;
            }
        }
        endPiece();
        const bool isEmpty = std::any_of(pieces.begin(), pieces.end(),
                                         [](const std::wstring& p) { return p.empty(); });
        return !isEmpty || failAt(begin, "a type or a property is expected here");
    }

    bool atEndOfSubject() const
    {
        return m_place >= m_text.size() || m_text[m_place] == L')' || m_text[m_place] == L'(' ||
               operatorAt(m_text, m_place) || joiningWordHere();
    }

    bool value(std::wstring& result)
    {
        if (m_place < m_text.size() && m_text[m_place] == L'"')
            return quoted(result);
        const std::size_t begin = m_place;
        for (int depth = 0; m_place < m_text.size() && !joiningWordHere(); ++m_place) {
            if (m_text[m_place] == L'(')
                ++depth;
            else if (m_text[m_place] == L')' && --depth < 0)
                break;
        }
        result = trimmed(m_text.substr(begin, m_place - begin));
        return !result.empty() || failAt(begin, "a value is expected behind the operator; the "
                                                "empty text is \"\"");
    }

    bool quoted(std::wstring& result)
    {
        const std::size_t opening = m_place++;
        for (; m_place < m_text.size(); ++m_place) {
            if (m_text[m_place] != L'"') {
                result += m_text[m_place];
            } else if (m_text.substr(m_place + 1).starts_with(L'"')) {
                result += m_text[m_place++];
            } else {
                ++m_place;
                return true;
            }
        }
        return failAt(opening, "this quote is never closed");
    }

    bool joiningWordHere() const { return wordHere(L"and") || wordHere(L"or"); }

    /// True if the word stands at the place, and stands alone.
    bool wordHere(std::wstring_view word) const
    {
        const bool begins = m_place == 0 || isBorder(m_text[m_place - 1]);
        const std::size_t end = m_place + word.size();
        return begins && end <= m_text.size() &&
               equalWithoutCase(m_text.substr(m_place, word.size()), word) &&
               (end == m_text.size() || isBorder(m_text[end]));
    }

    static bool isBorder(wchar_t c) { return isBlank(c) || c == L'(' || c == L')' || c == L'"'; }

    bool takeWord(std::wstring_view word)
    {
        skipBlanks();
        if (!wordHere(word))
            return false;
        m_place += word.size();
        return true;
    }

    void skipBlanks()
    {
        while (m_place < m_text.size() && isBlank(m_text[m_place]))
            ++m_place;
    }

    std::wstring_view m_text;
    std::size_t m_place = 0;
    int m_depth = 0;
    std::optional<ExpressionProblem> m_problem;
};

} // namespace

std::variant<Expression, ExpressionProblem> readExpression(std::wstring_view text)
{
    return Reader(text).read();
}

std::string markedPlace(std::wstring_view text, std::size_t place)
{
    std::wstring line(text);
    std::replace_if(
        line.begin(), line.end(), [](wchar_t c) { return c < L' '; }, L' ');
    return "  " + kdToUtf8(line) + "\n  " + std::string(std::min(place, line.size()), ' ') + '^';
}

std::wstring writtenName(std::wstring_view text)
{
    const auto read = readExpression(text);
    const auto* expression = std::get_if<Expression>(&read);
    const bool isPlain = expression && expression->kind == Kind::Comparison &&
                         expression->comparison.subject == std::vector{std::wstring(text)} &&
                         text.find_first_of(L"*@=<>\"") == std::wstring_view::npos;
    return isPlain ? std::wstring(text) : inQuotes(text);
}

std::wstring writtenValue(std::wstring_view text)
{
    const auto read = readExpression(L"x = " + std::wstring(text));
    const auto* expression = std::get_if<Expression>(&read);
    const bool isPlain =
        expression && expression->kind == Kind::Comparison && expression->comparison.value == text;
    return isPlain ? std::wstring(text) : inQuotes(text);
}

std::wstring textOf(const Comparison& comparison)
{
    std::wstring text;
    for (const std::wstring& piece : comparison.subject) {
        const bool isAllTypes = text.empty() && piece == L"*" && comparison.subject.size() > 1;
        text += (text.empty() ? L"" : L": ") + (isAllTypes ? piece : writtenName(piece));
    }
    if (!comparison.op.empty())
        text += L' ' + comparison.op + L' ' + writtenValue(comparison.value);
    return text;
}
