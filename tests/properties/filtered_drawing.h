// Asks a drawing many filters and compares each outcome with the plain evaluation.
#pragma once

#include <map>
#include <set>

#include "../command/support.h"
#include "plain_value.h"

namespace properties_test {

/// An entity of the model with what decides on it apart from its property.
struct Subject
{
    std::size_t number; ///< in the order of the drawing
    const KdDbEntity* entity;
    std::wstring className;
    std::wstring displayName;
    bool frozen; ///< by its layer: it is not there to be selected, be it by what it is or is not
    bool off;    ///< a view that is off is selected by nothing that it is
    std::map<std::wstring, PlainValues> values = {};

    bool canMatch() const { return !frozen && !off; }
    const PlainValues& valuesOf(const std::wstring& key);
};

/// Entities that are asked together. Without a name: all there are.
struct Type
{
    std::wstring className;
    std::wstring displayName;
};

struct Filter
{
    Type type;
    std::wstring key;
    Test test;
    Wanted wanted;
};

enum class Mode
{
    Include,
    Exclude,
    Append,
};

/// Runs over the working drawing's model. Differences become failures of the test.
class FilteredDrawing
{
  public:
    /// @param wantedOfEach  with how many entities' own values each property is asked
    FilteredDrawing(KdDbDatabase& drawing, std::size_t wantedOfEach);

    /// Asks everything.
    void ask();
    /// Filters that were run and compared.
    std::size_t runs() const { return m_runs; }

  private:
    using Outcome = std::set<std::size_t>; ///< numbers of entities

    void askType(const Type& type);
    void askProperty(const Type& type, Subject& example, const std::wstring& key);
    void askValue(const Type& type, Subject& owner, const std::wstring& key, const Wanted& wanted);
    Outcome askTest(const Filter& filter);
    void expectOutcome(const Filter& filter, Mode mode);

    std::vector<Subject*> membersOf(const Type& type);
    Outcome expected(const Filter& filter);
    Outcome expected(const Filter& filter, Mode mode);
    Outcome run(const Filter& filter, Mode mode);
    Outcome start() const;
    std::string inWords(const Filter& filter) const;

    KdDbDatabase& m_drawing;
    std::size_t m_wantedOfEach;
    double m_tolerance;
    std::vector<Subject> m_subjects;
    std::map<KdDbObjectId, std::size_t> m_numbers;
    std::size_t m_runs = 0;
    std::size_t m_turn = 0;
};

} // namespace properties_test
