// Drawings with random members.
#pragma once

#include <cstdint>
#include <random>
#include <vector>

#include <runtime/rx_class.h>

#include "../exchange/made_drawing.h"

namespace properties_test {

/// The classes whose entities stand by themselves in drawings, in the order of their names.
std::vector<const KdRxClass*> kindsInDrawings();

/// Makes the same drawings for the same seed, on every machine.
class RandomDrawing
{
  public:
    explicit RandomDrawing(std::uint32_t seed) : m_random(seed) {}

    /// A drawing whose model holds so many entities of each kind. Their members are drawn from few
    /// values, so that many are equal, and some differ by less than is displayed.
    Groups of(const std::vector<const KdRxClass*>& kinds, int ofEach);

  private:
    template <class Value, std::size_t count>
    const Value& oneOf(const Value (&values)[count])
    {
        return values[m_random() % count];
    }
    bool isLikely(unsigned percent) { return below(100) < percent; }

    unsigned below(unsigned limit) { return static_cast<unsigned>(m_random() % limit); }
    std::string value(int code);
    void addSome(Groups& groups, std::initializer_list<int> codes, unsigned percent);
    void addPoint(Groups& groups, int code);
    void addHead(Groups& groups, const std::string& name);
    void addMembers(Groups& groups);
    void addParts(Groups& groups, const KdRxClass& rxClass);
    void addEntity(Groups& groups, const KdRxClass& rxClass);
    Groups tables();

    std::mt19937 m_random;
};

} // namespace properties_test
