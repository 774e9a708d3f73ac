#include <common/row_format.h>

#include <algorithm>
#include <utility>

#include <wchar.h>

#include <runtime/utf8.h>

namespace {

using Json = nlohmann::ordered_json;

class HandleWriter : public RowWriter
{
  public:
    explicit HandleWriter(std::ostream& stream) : m_stream(stream) {}
    void row(const Row& cells) override { m_stream << cells.front().text << '\n'; }

  private:
    std::ostream& m_stream;
};

/// Places on a screen; control characters count as one.
std::size_t widthOf(const std::string& text)
{
    std::size_t width = 0;
    for (const wchar_t c : kdFromUtf8(text))
        width += static_cast<std::size_t>(std::max(wcwidth(c), c < L' ' ? 1 : 0));
    return width;
}

/// `text` on one line: line ends and tabs become blanks.
std::string onOneLine(std::string text)
{
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\n' || c == '\r' || c == '\t'; }, ' ');
    return text;
}

class TableWriter : public RowWriter
{
  public:
    TableWriter(std::vector<std::string> columns, std::ostream& stream)
        : m_lines{std::move(columns)}, m_isNumber(m_lines.front().size(), true), m_stream(stream)
    {
    }

    void row(const Row& cells) override
    {
        auto& line = m_lines.emplace_back();
        for (std::size_t i = 0; i < cells.size(); ++i) {
            line.push_back(onOneLine(cells[i].text));
            if (!cells[i].json.is_number() && !cells[i].json.is_null())
                m_isNumber[i] = false;
        }
    }

    void finish() override
    {
        std::vector<std::size_t> widths(m_isNumber.size(), 0);
        for (const auto& line : m_lines) {
            for (std::size_t i = 0; i < line.size(); ++i)
                widths[i] = std::max(widths[i], widthOf(line[i]));
        }
        for (const auto& line : m_lines)
            m_stream << aligned(line, widths) << '\n';
    }

  private:
    /// Numbers to the right, all else to the left.
    std::string aligned(const std::vector<std::string>& line,
                        const std::vector<std::size_t>& widths) const
    {
        std::string text;
        for (std::size_t i = 0; i < line.size(); ++i) {
            const std::string blanks(widths[i] - widthOf(line[i]), ' ');
            text += (i > 0 ? "  " : "") + (m_isNumber[i] ? blanks + line[i] : line[i] + blanks);
        }
        text.erase(text.find_last_not_of(' ') + 1);
        return text;
    }

    std::vector<std::vector<std::string>> m_lines;
    std::vector<bool> m_isNumber;
    std::ostream& m_stream;
};

class TabWriter : public RowWriter
{
  public:
    explicit TabWriter(std::ostream& stream) : m_stream(stream) {}
    void row(const Row& cells) override
    {
        for (std::size_t i = 0; i < cells.size(); ++i)
            m_stream << (i > 0 ? "\t" : "") << onOneLine(cells[i].text);
        m_stream << '\n';
    }

  private:
    std::ostream& m_stream;
};

class CsvWriter : public RowWriter
{
  public:
    CsvWriter(const std::vector<std::string>& columns, std::ostream& stream) : m_stream(stream)
    {
        Row names;
        for (const std::string& column : columns)
            names.push_back({column, nullptr});
        row(names);
    }
    void row(const Row& cells) override
    {
        for (std::size_t i = 0; i < cells.size(); ++i)
            m_stream << (i > 0 ? "," : "") << field(cells[i].text);
        m_stream << "\r\n";
    }

  private:
    static std::string field(const std::string& text)
    {
        if (text.find_first_of(",\"\r\n") == std::string::npos)
            return text;
        std::string quoted = "\"";
        for (const char c : text) {
            if (c == '"')
                quoted += c;
            quoted += c;
        }
        return quoted + '"';
    }

    std::ostream& m_stream;
};

class JsonWriter : public RowWriter
{
  public:
    JsonWriter(std::vector<std::string> columns, bool asArray, std::ostream& stream)
        : m_columns(std::move(columns)), m_asArray(asArray), m_stream(stream)
    {
    }
    void row(const Row& cells) override
    {
        Json object = Json::object();
        for (std::size_t i = 0; i < cells.size(); ++i)
            object[m_columns[i]] = cells[i].json;
        if (m_asArray)
            m_stream << (m_isEmpty ? "[\n" : ",\n");
        m_stream << object.dump(-1, ' ', false, Json::error_handler_t::replace);
        if (!m_asArray)
            m_stream << '\n';
        m_isEmpty = false;
    }
    void finish() override
    {
        if (m_asArray)
            m_stream << (m_isEmpty ? "[]\n" : "\n]\n");
    }

  private:
    std::vector<std::string> m_columns;
    bool m_asArray;
    bool m_isEmpty = true;
    std::ostream& m_stream;
};

} // namespace

Cell textCell(std::string text)
{
    Cell cell{text, nullptr};
    cell.json = std::move(text);
    return cell;
}

Cell numberCell(std::size_t number)
{
    return {std::to_string(number), number};
}

const std::map<std::string, RowFormat>& formatNames()
{
    static const std::map<std::string, RowFormat> names{
        {"handles", RowFormat::Handles}, {"table", RowFormat::Table},
        {"tsv", RowFormat::Tabs},        {"csv", RowFormat::Csv},
        {"json", RowFormat::Json},       {"jsonl", RowFormat::JsonLines}};
    return names;
}

std::unique_ptr<RowWriter> makeRowWriter(RowFormat format, std::vector<std::string> columns,
                                         std::ostream& stream)
{
    switch (format) {
    case RowFormat::Table:
        return std::make_unique<TableWriter>(std::move(columns), stream);
    case RowFormat::Tabs:
        return std::make_unique<TabWriter>(stream);
    case RowFormat::Csv:
        return std::make_unique<CsvWriter>(columns, stream);
    case RowFormat::Json:
    case RowFormat::JsonLines:
        return std::make_unique<JsonWriter>(std::move(columns), format == RowFormat::Json, stream);
    default:
        return std::make_unique<HandleWriter>(stream);
    }
}
