#include <kwdraw/panels/filter_running.h>

#include <utility>

#include <common/entity_set.h>
#include <common/selection_steps.h>
#include <editor/selection_sets.h>
#include <runtime/utf8.h>

namespace {

/// Keeps the steps between from whoever follows the selection.
class QuietPickfirst
{
  public:
    QuietPickfirst() : m_hook(kdedSetPickfirstHook({})) {}
    ~QuietPickfirst() { kdedSetPickfirstHook(std::move(m_hook)); }
    QuietPickfirst(const QuietPickfirst&) = delete;
    QuietPickfirst& operator=(const QuietPickfirst&) = delete;

  private:
    KdedPickfirstHook m_hook;
};

std::string withPlace(const std::string& sentence, const std::wstring& text, std::size_t place)
{
    return sentence + '\n' + markedPlace(text, place);
}

} // namespace

bool runFilter(const Module& module, const std::wstring& text, const FilterFile& filters,
               std::string& problem)
{
    auto read = readExpression(text);
    if (const auto* wrong = std::get_if<ExpressionProblem>(&read)) {
        problem = withPlace(wrong->reason, text, wrong->place);
        return false;
    }
    SelectionStep step;
    step.text = text;
    step.expression = std::get<Expression>(std::move(read));
    const bool namesOthers = text.find(L'@') != std::wstring::npos;
    if (!filters.expand(step.expression, problem))
        return false;
    Ids found;
    {
        const QuietPickfirst quiet;
        const Ids before = pickfirstEntities();
        Catalog catalog(module);
        Selecting selecting(catalog);
        if (!selecting.carryOut(step)) {
            setPickfirstEntities(before);
            // Places in the text of another filter say nothing here.
            problem = namesOthers ? selecting.problem().sentence
                                  : withPlace(selecting.problem().sentence, text,
                                              selecting.problem().place);
            return false;
        }
        found = selecting.selection();
    }
    tellSelection(module, found);
    return true;
}
