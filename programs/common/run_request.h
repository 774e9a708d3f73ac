/// What runs of the module have asked for.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include <common/filter_resolving.h>

/// A request with its texts, see `quick_select::Request`.
struct RunRequest
{
    std::wstring typeName; ///< empty: all types
    std::wstring className;
    std::wstring key; ///< empty: the type alone counts
    std::wstring op;  ///< empty: all that have the property
    std::wstring value;
    int axis = 0;
    int kind = 5000; ///< restype of the property's value
    bool exclude = false;
    bool append = false;
    bool fromSelection = false;
    bool overPicked = false; ///< over what was picked in the dialog
    std::optional<double> tolerance;
    /// A whole filter, as it is typed, that was run over the space; nothing else counts then.
    std::wstring expression;

    /// The record for a run; its texts live as long as this object.
    quick_select::Request request() const;
};

/// The request of the module's last run; none if there was none or no text stands for its value.
std::optional<RunRequest> lastRun(const Module& module);

/// The comparison that finds the same in the drawing of the catalog, in the shortest words that
/// are not ambiguous there. None if there is none: two types may share a display name.
std::optional<Comparison> comparisonOf(const RunRequest& request, Catalog& catalog);

/// The runs that have led to the selection, from the last one that replaced it.
class RunChain
{
  public:
    /// Notes a run that has come to its end.
    /// @param selected  how many are selected now
    void add(const RunRequest& request, std::size_t selected);
    /// Notes a filter whose outcome has replaced the selection.
    /// @param expression  as it is typed, naming no other filter
    void add(const std::wstring& expression);
    /// The selection has changed in another way.
    void breakOff() { *this = {}; }

    /// The last is the one that was added last. Empty if nothing was added since the break.
    const std::vector<RunRequest>& runs() const { return m_runs; }

  private:
    std::vector<RunRequest> m_runs;
};
