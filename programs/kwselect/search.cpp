#include "search.h"

#include <filesystem>
#include <iostream>
#include <system_error>

#include <common/entity_columns.h>
#include <exchange/drawing_writer.h>
#include <runtime/utf8.h>

#include "account.h"
#include "drawing.h"
#include "dump.h"
#include "listing.h"
#include "spaces.h"
#include "value_tally.h"

namespace {

/// The columns that are read of each entity.
std::vector<std::string> entityColumns(const Plan& plan)
{
    return plan.options.groupBy.empty() ? plan.columns
                                        : std::vector<std::string>{plan.options.groupBy};
}

class Search
{
  public:
    Search(const Plan& plan, const std::string& file, const RowSink& sink, Drawing& drawing,
           const Module& module)
        : m_plan(plan),
          m_options(plan.options),
          m_file(file),
          m_sink(sink),
          m_drawing(drawing),
          m_module(module),
          m_columns(module, file, entityColumns(plan))
    {
    }

    SearchResult run()
    {
        std::vector<SearchSpace> spaces;
        if (!findSpaces(m_drawing.database(), m_options.space, spaces, m_result.missing))
            return m_result;
        const Release release(m_module);
        for (const SearchSpace& space : spaces) {
            m_module.holdDrawing(true); // anew for each space
            enterSpace(m_drawing.database(), space);
            m_columns.setSpace(space.label);
            if (!searchSpace(space))
                return m_result;
        }
        finish();
        return m_result;
    }

  private:
    /// Ends the promise that nothing changes in the drawing.
    class Release
    {
      public:
        explicit Release(const Module& module) : m_module(module) {}
        ~Release() { m_module.holdDrawing(false); }
        Release(const Release&) = delete;
        Release& operator=(const Release&) = delete;

      private:
        const Module& m_module;
    };

    /// False: the search ends with a problem that has been told.
    bool searchSpace(const SearchSpace& space)
    {
        Catalog catalog(m_module);
        if (catalog.types().empty())
            return true;
        ++m_spacesWithObjects;
        if (!m_options.list.empty())
            return list(catalog);
        if (m_options.dump) {
            dumpEntities(m_module, m_sink);
            return found();
        }
        Selecting selecting(catalog);
        if (m_options.tolerance)
            selecting.setTolerance(*m_options.tolerance);
        if (!m_options.why.empty())
            return why(catalog, selecting);
        for (const SelectionStep& step : m_plan.steps) {
            if (!selecting.carryOut(step))
                return tell(selecting.problem(), step);
        }
        if (m_plan.steps.empty())
            selecting.setSelection(selecting.space());
        if (m_options.explain)
            tellAccount(std::cerr, {m_file + ": " + space.label, m_drawing.unreadEntities()},
                        m_plan, catalog, selecting);
        return take(selecting.selection());
    }

    bool list(Catalog& catalog)
    {
        FilterProblem problem;
        const RowSink named = [this](const Row& cells) { m_sink(withFile(cells)); };
        if (!listCatalog(catalog, m_options, named, problem))
            return tell(problem, {});
        return found();
    }

    bool why(Catalog& catalog, Selecting& selecting)
    {
        const WhyAnswer answer = tellWhy(std::cout, m_options.why, m_plan, catalog, selecting);
        m_handleIsHere |= answer != WhyAnswer::NotHere;
        if (answer == WhyAnswer::Selected)
            found();
        return true;
    }

    /// Prints or counts what is selected in one space.
    bool take(const Ids& selection)
    {
        m_selected.insert(m_selected.end(), selection.begin(), selection.end());
        if (!selection.empty())
            found();
        if (!m_options.count && m_options.why.empty())
            visit(selection);
        return true;
    }

    void visit(const Ids& selection)
    {
        visitEntities(
            m_module, selection,
            [](void* search, const quick_select::Entity& entity) {
                static_cast<Search*>(search)->takeEntity(entity);
            },
            this);
    }

    void takeEntity(const quick_select::Entity& entity)
    {
        Row cells = m_columns.row(entity);
        if (m_options.groupBy.empty())
            m_sink(cells);
        else
            m_groups.add(std::move(cells.back()));
    }

    void finish()
    {
        if (m_spacesWithObjects == 0)
            std::cerr << "kwselect: " << m_file << ": the space holds no objects\n";
        if (m_spacesMissing < m_spacesWithObjects)
            m_result.missing.clear();
        if (m_spacesWithObjects == 0 || !m_result.missing.empty())
            return;
        if (!m_options.why.empty()) {
            if (!m_handleIsHere)
                m_result.missing =
                    "no entity with the handle " + m_options.why + " is in the space";
            return;
        }
        if (m_options.count)
            m_sink(withFile({numberCell(m_selected.size())}));
        m_groups.visit(ValueTally::Order::MostFirst,
                       [this](const Row& cells) { m_sink(withFile(cells)); });
        checkColumns();
        if (m_options.list.empty() && !m_options.dump && !m_plan.hasSeveralDrawings())
            tellSelection(m_module, m_selected);
        if (!m_options.write.empty() && !m_selected.empty())
            write();
    }

    void write()
    {
        KdString error;
        WriteOptions writing;
        writing.overwrite = m_options.overwrite;
        std::error_code noCode;
        if (std::filesystem::equivalent(m_options.write, m_file, noCode)) // also one converted
            error = L"A drawing can't be written over the file that it comes from.";
        else if (writeSelection(m_drawing.database(), m_selected, m_options.write, error,
                                writing) == eOk)
            return;
        std::cerr << "kwselect: " << m_options.write << ": " << kdToUtf8(error) << '\n';
        m_result.status = kCannotWork;
    }

    /// A column that no entity has is a slip of the person who typed it.
    void checkColumns()
    {
        std::string lacking;
        const bool areAsked = !m_options.columns.empty() || !m_options.groupBy.empty();
        if (!areAsked || m_selected.empty() || m_columns.allFound(lacking))
            return;
        m_result.missing = "none of the selected entities has the property \"" + lacking + '"';
    }

    Row withFile(Row cells) const
    {
        if (m_plan.hasSeveralDrawings())
            cells.insert(cells.begin(), textCell(m_file));
        return cells;
    }

    bool found()
    {
        m_result.status = kSelected;
        return true;
    }

    /// A problem of the filter. What one space lacks another may have.
    bool tell(const FilterProblem& problem, const SelectionStep& step)
    {
        std::string sentence = problem.sentence;
        if (!step.text.empty())
            sentence += '\n' + markedPlace(step.text, problem.place);
        if (problem.isMissing) {
            m_result.missing = sentence;
            ++m_spacesMissing;
            return true;
        }
        std::cerr << "kwselect: " << m_file << ": " << sentence << '\n';
        m_result.status = kCannotWork;
        return false;
    }

    const Plan& m_plan;
    const Options& m_options;
    const std::string& m_file;
    const RowSink& m_sink;
    Drawing& m_drawing;
    const Module& m_module;
    EntityColumns m_columns;
    SearchResult m_result;
    Ids m_selected;
    ValueTally m_groups;
    std::size_t m_spacesMissing = 0;
    std::size_t m_spacesWithObjects = 0;
    bool m_handleIsHere = false;
};

/// A process searches one drawing and ends. So the drawing is left to the system, which takes all
/// its memory back at once and need not look at a million entities.
Drawing& drawingOfProcess()
{
    static auto& drawing = *new Drawing;
    return drawing;
}

} // namespace

SearchResult searchDrawing(const Plan& plan, const std::string& file, const RowSink& sink)
{
    Drawing& drawing = drawingOfProcess();
    if (const ExitStatus status = drawing.open(file); status != kSelected)
        return {status, {}};
    Module module;
    if (!module.load(modulePath())) {
        std::cerr << "kwselect: " << module.error() << '\n';
        return {kCannotWork, {}};
    }
    SearchResult result = Search(plan, file, sink, drawing, module).run();
    std::cout.flush();
    if (!drawing.isIntact())
        return {kCannotWork, {}};
    if (!drawing.isComplete()) {
        drawing.tellDamage();
        if (result.status != kCannotWork)
            result.status = kReadInPart;
    }
    return result;
}
