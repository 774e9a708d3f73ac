#include <kwdraw/panels/selection_rows.h>

#include <utility>

namespace {

RowFormat rowFormatOf(ExportFormat format)
{
    switch (format) {
    case ExportFormat::Csv:
        return RowFormat::Csv;
    case ExportFormat::Json:
        return RowFormat::Json;
    case ExportFormat::Table:
        return RowFormat::Tabs;
    default:
        return RowFormat::Handles;
    }
}

std::vector<std::string> columnsFor(const ExportOptions& options)
{
    if (options.format == ExportFormat::Handles)
        return {"Handle"};
    return options.columns.empty() ? exportColumns({}) : options.columns;
}

} // namespace

SelectionRows::SelectionRows(const Module& module, std::vector<KdDbObjectId> entities,
                             const ExportOptions& options, const std::string& drawing)
    : m_visit(module, std::move(entities)),
      m_format(rowFormatOf(options.format)),
      m_names(columnsFor(options)),
      m_columns(module, drawing, m_names)
{
}

bool SelectionRows::open(const std::filesystem::path& file, const SafeFileRules& rules,
                         std::string& problem)
{
    m_isFile = true;
    return m_file.open(file, rules, problem);
}

void SelectionRows::begin()
{
    std::ostream& stream = m_isFile ? static_cast<std::ostream&>(m_file) : m_text;
    m_writer = makeRowWriter(m_format, m_names, stream);
    if (m_format != RowFormat::Tabs)
        return; // the others write the names themselves where they need them
    Row names;
    for (const std::string& name : m_names)
        names.push_back(textCell(name));
    m_writer->row(names);
}

void SelectionRows::writeOn(std::chrono::milliseconds time)
{
    if (!m_writer)
        begin();
    m_visit.goOn(time, take, this);
}

void SelectionRows::take(void* context, const quick_select::Entity& entity)
{
    auto& self = *static_cast<SelectionRows*>(context);
    self.m_writer->row(self.m_columns.row(entity));
}

bool SelectionRows::finish(std::string& problem)
{
    m_writer->finish();
    return !m_isFile || m_file.finish(problem);
}
