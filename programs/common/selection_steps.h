/// Filters carried out: each comparison is one run of the module, and the words between them join
/// the outcomes as sets.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <common/filter_resolving.h>

using Ids = std::vector<KdDbObjectId>;

/// One of the filters that a selection is made with, in turn.
struct SelectionStep
{
    enum class Over
    {
        Space,     ///< everything, and the outcome replaces the selection
        Selection, ///< what is selected so far
        Append,    ///< everything, and the outcome joins the selection
    };

    Over over = Over::Space;
    Expression expression;
    std::wstring text;    ///< as it was written, for messages
    bool exclude = false; ///< everything but the matches
};

/// What a filter searches, and whose names it knows.
struct SearchScope
{
    Catalog& catalog;
    const Ids* within = nullptr; ///< null: the whole space
};

/// The scope of a step. Over the selection it has a catalog of its own, as the dialog has: a
/// selection of lines alone has all properties of lines in common.
class StepScope
{
  public:
    /// @param space      the catalog of the whole space; it and `selection` must outlive the scope
    /// @param selection  what the steps before have selected
    StepScope(Catalog& space, const SelectionStep& step, const Ids& selection);

    SearchScope scope() { return {m_selected ? *m_selected : m_space, m_within}; }

  private:
    Catalog& m_space;
    std::optional<Catalog> m_selected;
    const Ids* m_within = nullptr;
};

/// Carries out filters over the current space of the working drawing.
class Selecting
{
  public:
    explicit Selecting(Catalog& catalog) : m_catalog(catalog) {}

    /// Reals count as equal within this; otherwise by the drawing's precision.
    void setTolerance(double tolerance) { m_tolerance = tolerance; }
    /// Carries out one step and makes the outcome the host's selection. False: `problem()`.
    bool carryOut(const SelectionStep& step);
    /// The selection so far, in its order.
    const Ids& selection() const { return m_selection; }
    void setSelection(Ids ids) { m_selection = std::move(ids); }

    /// The entities that an expression matches, in the order of the scope. False: `problem()`.
    bool matches(const Expression& expression, const SearchScope& scope, Ids& found);
    /// What there is to select in the space.
    const Ids& space();

    const FilterProblem& problem() const { return m_problem; }

  private:
    bool runOne(const Comparison& comparison, const SearchScope& scope, bool exclude, Ids& found);
    bool isElsewhereInSpace(const Comparison& comparison, const SearchScope& scope) const;
    bool all(const std::vector<Expression>& parts, const SearchScope& scope, Ids& found);
    bool any(const std::vector<Expression>& parts, const SearchScope& scope, Ids& found);
    bool excluded(const Expression& expression, const SearchScope& scope, Ids& found);
    bool fail(const Comparison& comparison, const ResolvedFilter& filter,
              quick_select::Outcome outcome);

    Catalog& m_catalog;
    std::optional<double> m_tolerance;
    Ids m_selection;
    std::optional<Ids> m_space;
    FilterProblem m_problem;
};

/// Visits entities with the names of their types, in order.
void visitEntities(const Module& module, const Ids& ids, quick_select::EntityVisitor visitor,
                   void* context);

/// Prints the host's line on how much is selected, as a run does that selects just this.
void tellSelection(const Module& module, const Ids& selection);
