/// Rows of columns, written as tables, separated values or JSON.
#pragma once

#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

/// One value, as a person reads it and as a program does.
struct Cell
{
    std::string text; ///< UTF-8
    nlohmann::ordered_json json;
};

using Row = std::vector<Cell>;

Cell textCell(std::string text);
Cell numberCell(std::size_t number);

enum class RowFormat
{
    Handles,   ///< the first column alone, one a line
    Table,     ///< columns aligned, under their names
    Tabs,      ///< columns between tabs, without their names
    Csv,       ///< RFC 4180, the names first
    Json,      ///< one array of objects
    JsonLines, ///< one object a line
};

/// What the formats are called on the command line.
const std::map<std::string, RowFormat>& formatNames();

/// Writes rows as they come; a table when it is finished.
class RowWriter
{
  public:
    virtual ~RowWriter() = default;
    virtual void row(const Row& cells) = 0;
    virtual void finish() {}
};

/// A writer to a stream that outlives it.
std::unique_ptr<RowWriter> makeRowWriter(RowFormat format, std::vector<std::string> columns,
                                         std::ostream& stream);
