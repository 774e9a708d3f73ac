#include <kwdraw/panels/selection_rows.h>

#include <algorithm>
#include <utility>

#include <common/selection_steps.h>

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
    : m_module(module),
      m_entities(std::move(entities)),
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
    constexpr std::size_t kAtATime = 16;
    const auto end = std::chrono::steady_clock::now() + time;
    if (!m_writer)
        begin();
    while (!isDone() && std::chrono::steady_clock::now() < end) {
        const std::size_t stop = std::min(m_next + kAtATime, m_entities.size());
        const Ids slice(m_entities.begin() + static_cast<std::ptrdiff_t>(m_next),
                        m_entities.begin() + static_cast<std::ptrdiff_t>(stop));
        visitEntities(m_module, slice, take, this);
        m_next = stop;
    }
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
