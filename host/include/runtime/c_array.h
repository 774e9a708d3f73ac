/// The growing array of the dialog side.
#pragma once

#include <cstddef>
#include <vector>

/// `Argument` is the type by which elements are handed in.
template <class Element, class Argument = const Element&>
class CArray
{
  public:
    int GetSize() const { return static_cast<int>(m_elements.size()); }
    /// Adds a copy at the end and returns its index.
    int Add(Argument element)
    {
        m_elements.push_back(element);
        return GetSize() - 1;
    }
    const Element& GetAt(int index) const { return m_elements.at(static_cast<std::size_t>(index)); }
    void RemoveAll() { m_elements.clear(); }

  private:
    std::vector<Element> m_elements;
};
