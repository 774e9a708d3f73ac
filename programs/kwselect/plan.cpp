#include "plan.h"

#include <utility>

#include <common/entity_columns.h>
#include <common/filter_file.h>
#include <common/recent_filters.h>
#include <runtime/utf8.h>

#include "inputs.h"

namespace {

class PlanMaker
{
  public:
    PlanMaker(const Options& options, Plan& plan, std::string& problem)
        : m_options(options), m_plan(plan), m_problem(problem)
    {
    }

    bool make()
    {
        Inputs inputs;
        m_plan.options = m_options;
        if (!sortArguments(m_options.arguments, inputs, m_problem) || !readSteps(inputs.filter))
            return false;
        m_plan.drawings = std::move(inputs.drawings);
        if (m_plan.drawings.empty())
            return fail("a DRAWING is needed");
        chooseRows();
        return checkOptions();
    }

  private:
    bool fail(std::string problem)
    {
        m_problem = std::move(problem);
        return false;
    }

    bool readSteps(const std::string& argument)
    {
        std::string text = argument.empty() ? m_options.filter : argument;
        if (!argument.empty() &&
            (!m_options.filter.empty() || m_options.recent > 0 || m_options.hasPlainFilter()))
            return fail("\"" + argument +
                        "\" and the options are two filters; join them with "
                        "\"and\", or chain them with --then");
        if (m_options.recent > 0 && !takeRecent(text))
            return false;
        if (!text.empty()) {
            if (!readStep(SelectionStep::Over::Space, text, m_options.exclude))
                return false;
        } else if (m_options.hasPlainFilter() || m_options.exclude) {
            if (!takePlainFilter())
                return false;
        }
        for (const Options::FurtherStep& step : m_options.further) {
            if (!readStep(step.over, step.text, step.exclude))
                return false;
        }
        return true;
    }

    bool takeRecent(std::string& text)
    {
        const RecentFilters recent(recentFilterFile());
        const std::size_t count = recent.texts().size();
        if (m_options.recent > count)
            return fail("--recent " + std::to_string(m_options.recent) + ": " +
                        recent.path().string() + " holds " + std::to_string(count));
        text = kdToUtf8(recent.texts()[m_options.recent - 1]);
        return true;
    }

    /// The filter that stands in options of its own.
    bool takePlainFilter()
    {
        if (m_options.property.empty() && (!m_options.op.empty() || m_options.value))
            return fail("an operator or a value needs --property");
        const std::string op = !m_options.op.empty() ? m_options.op : m_options.value ? "=" : "all";
        if (op != "all" && !m_options.value)
            return fail("the operator \"" + op + "\" needs --value");
        SelectionStep& step = m_plan.steps.emplace_back();
        Comparison& comparison = step.expression.comparison;
        comparison.subject.push_back(m_options.type.empty() ? L"*" : kdFromUtf8(m_options.type));
        comparison.namesType = true;
        if (!m_options.property.empty())
            comparison.subject.push_back(kdFromUtf8(m_options.property));
        comparison.op = op == "all" ? L"" : kdFromUtf8(op);
        comparison.value = kdFromUtf8(m_options.value.value_or(""));
        step.exclude = m_options.exclude;
        return true;
    }

    bool readStep(SelectionStep::Over over, const std::string& text, bool exclude)
    {
        const std::wstring wide = kdFromUtf8(text);
        auto read = readExpression(wide);
        if (const auto* problem = std::get_if<ExpressionProblem>(&read))
            return fail(problem->reason + '\n' + markedPlace(wide, problem->place));
        m_plan.steps.push_back({over, std::get<Expression>(std::move(read)), wide, exclude});
        return expandNames(m_plan.steps.back());
    }

    bool expandNames(SelectionStep& step)
    {
        if (!m_hasFilters && step.text.find(L'@') != std::wstring::npos) {
            const auto file = m_options.filterFile.empty()
                                  ? userFilterFile()
                                  : std::filesystem::path(m_options.filterFile);
            if (!m_filters.read(file, m_problem))
                return false;
            m_hasFilters = true;
        }
        return m_filters.expand(step.expression, m_problem);
    }

    /// What the rows hold, and how they are written where the options don't say.
    void chooseRows()
    {
        const bool withFile = m_plan.hasSeveralDrawings();
        const bool withSpace = m_plan.hasSeveralSpaces();
        RowFormat usual = RowFormat::Tabs;
        auto& columns = m_plan.columns;
        if (!m_options.list.empty()) {
            columns = listColumns();
        } else if (m_options.dump) {
            columns = {"Entity"};
            usual = RowFormat::Handles;
        } else if (m_options.count) {
            columns = {"Count"};
        } else if (!m_options.groupBy.empty()) {
            columns = {m_options.groupBy, "Count"};
        } else {
            chooseEntityColumns(withFile, withSpace, usual);
            m_plan.format = m_options.format.value_or(usual);
            return;
        }
        if (withFile && !m_options.dump)
            columns.insert(columns.begin(), "File");
        m_plan.format = m_options.format.value_or(usual);
    }

    void chooseEntityColumns(bool withFile, bool withSpace, RowFormat& usual)
    {
        const bool isPlain = !m_options.format || *m_options.format == RowFormat::Handles;
        if (!m_options.columns.empty()) {
            m_plan.columns = m_options.columns;
            usual = RowFormat::Table;
        } else if (!isPlain) {
            m_plan.columns = defaultColumns(withFile, withSpace);
        } else {
            const bool onlyHandles = !withFile || m_options.format;
            m_plan.columns = onlyHandles ? std::vector<std::string>{"Handle"}
                                         : std::vector<std::string>{"File", "Handle"};
            usual = onlyHandles ? RowFormat::Handles : RowFormat::Tabs;
        }
    }

    std::vector<std::string> listColumns() const
    {
        if (m_options.list == "types")
            return {"Type", "Count", "Class"};
        if (m_options.list == "properties")
            return {"Property", "Category", "Operators"};
        if (m_options.list == "operators")
            return {"Operator"};
        return {"Value", "Count"};
    }

    bool checkOptions()
    {
        const bool listsOfProperty = m_options.list == "values" || m_options.list == "operators";
        if (listsOfProperty && m_options.property.empty())
            return fail("--list " + m_options.list + " needs --property");
        const bool selects =
            m_options.list.empty() && !m_options.dump && !m_options.audit && m_options.why.empty();
        if (!m_options.write.empty() && !selects)
            return fail("--write goes with a selection");
        if (!m_options.write.empty() && m_plan.hasSeveralDrawings())
            return fail("--write takes the selection of one drawing");
        if (m_options.overwrite && m_options.write.empty() && m_options.output.empty())
            return fail("--overwrite goes with --write or --output");
        if (m_options.audit && m_options.format && *m_options.format != RowFormat::Json)
            return fail("--audit prints lines, or JSON with --format json");
        return true;
    }

    const Options& m_options;
    Plan& m_plan;
    std::string& m_problem;
    FilterFile m_filters;
    bool m_hasFilters = false;
};

} // namespace

bool makePlan(const Options& options, Plan& plan, std::string& problem)
{
    return PlanMaker(options, plan, problem).make();
}
