#include <kwdraw/texts/text_stack.h>

#include <algorithm>
#include <string>

#include <entities/text_codes.h>

namespace {

/// In heights of the letters.
constexpr double kRowGap = 0.5;    ///< between the rows, for a bar in its middle
constexpr double kOverhang = 0.1;  ///< of the bar, to both sides
constexpr double kSlantRise = 0.6; ///< of the upper row over the lower of a slanted fraction
constexpr double kSlantWidth = 0.5;

struct Rows
{
    QString upper;
    QString lower;
    wchar_t sign = 0; ///< between them; 0: there is one row
};

Rows rowsOf(std::wstring_view content)
{
    std::wstring upper;
    std::wstring lower;
    wchar_t sign = 0;
    for (std::size_t at = 0; at < content.size();) {
        std::wstring& row = sign ? lower : upper;
        TextCode code;
        if (content[at] == L'\\' && at + 1 < content.size()) {
            row.push_back(content[at + 1]);
            at += 2;
        } else if (kddbTakeTextCode(content, at, code)) {
            if (code.letter)
                row.push_back(code.letter);
        } else if (!sign && (content[at] == L'/' || content[at] == L'#' || content[at] == L'^')) {
            sign = content[at++];
        } else {
            row.push_back(content[at++]);
        }
    }
    // A blank that keeps a sign in place aligns nothing here.
    return {QString::fromStdWString(upper).trimmed(), QString::fromStdWString(lower).trimmed(),
            sign};
}

class StackSetter
{
  public:
    StackSetter(const TextLook& look, std::uint32_t lookIndex) : m_look(look), m_index(lookIndex) {}

    TextStack set(const Rows& rows)
    {
        const double upper = widthOf(m_look, rows.upper);
        const double lower = widthOf(m_look, rows.lower);
        switch (rows.sign) {
        case L'/':
            setOver(rows, upper, lower);
            break;
        case L'#':
            setSlanted(rows, upper, lower);
            break;
        case L'^':
            addRow(rows.upper, 0.0, m_look.height * (1.0 + kRowGap), upper);
            addRow(rows.lower, 0.0, 0.0, lower);
            m_stack.width = std::max(upper, lower);
            m_stack.height = m_look.height * (2.0 + kRowGap);
            break;
        default:
            addRow(rows.upper, 0.0, 0.0, upper);
            m_stack.width = upper;
            m_stack.height = m_look.height;
        }
        return std::move(m_stack);
    }

  private:
    void setOver(const Rows& rows, double upper, double lower)
    {
        const double height = m_look.height;
        const double overhang = kOverhang * height;
        m_stack.width = std::max(upper, lower) + 2.0 * overhang;
        m_stack.height = height * (2.0 + kRowGap);
        addRow(rows.upper, (m_stack.width - upper) / 2.0, height * (1.0 + kRowGap), upper);
        addRow(rows.lower, (m_stack.width - lower) / 2.0, 0.0, lower);
        const double middle = m_stack.height / 2.0;
        m_stack.pieces.bars.push_back({m_index, 0.0, middle, m_stack.width, middle});
    }

    void setSlanted(const Rows& rows, double upper, double lower)
    {
        const double height = m_look.height;
        const double slash = kSlantWidth * height;
        addRow(rows.upper, 0.0, kSlantRise * height, upper);
        addRow(rows.lower, upper + slash, 0.0, lower);
        m_stack.width = upper + slash + lower;
        m_stack.height = height * (1.0 + kSlantRise);
        m_stack.pieces.bars.push_back(
            {m_index, upper - slash / 2.0, 0.0, upper + slash * 1.5, m_stack.height});
    }

    void addRow(const QString& letters, double x, double y, double width)
    {
        if (!letters.isEmpty())
            m_stack.pieces.runs.push_back({letters, m_index, x, y, width});
    }

    const TextLook& m_look;
    std::uint32_t m_index;
    TextStack m_stack;
};

} // namespace

TextStack stackOf(std::wstring_view content, const TextLook& look, std::uint32_t lookIndex)
{
    return StackSetter(look, lookIndex).set(rowsOf(content));
}
