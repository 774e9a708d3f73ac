/// What the selected entities have in common.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

#include <common/catalog.h>
#include <kwdraw/panels/sliced_visit.h>

/// A property of several entities.
struct MergedProperty
{
    std::wstring key;
    std::vector<CatalogValue> values; ///< of the first entity
    bool readOnly = false;
    bool isOpen = false;      ///< of what its block holds, see open_keys.h
    bool varies = false;      ///< in what a person reads of the value
    bool axisVaries[3] = {};  ///< of a point, for each coordinate
    std::size_t entities = 0; ///< how many have it

    bool isPoint() const { return values.size() == 1 && dimensions() > 0; }
    int dimensions() const; ///< coordinates of a point, otherwise 0
    /// Parts of the key, without its ordering tabs.
    std::wstring category() const;
    std::wstring name() const;
};

/// The entities of one type, with what they have in common.
struct MergedType
{
    std::wstring displayName;
    std::wstring className;
    std::size_t entities = 0;
    std::vector<MergedProperty> properties; ///< some may be of fewer entities than there are
};

/// Reads the properties of entities a slice at a time, so that a window stays awake meanwhile.
class PropertyMerge
{
  public:
    explicit PropertyMerge(const Module& module) : m_module(module), m_visit(module) {}

    /// Begins anew. Nothing is read yet.
    void start(std::vector<KdDbObjectId> entities);
    /// Reads on for about that long. The entities must still be there.
    void readOn(std::chrono::milliseconds time);
    bool isDone() const { return m_visit.isDone(); }
    std::size_t read() const { return m_visit.visited(); }
    const std::vector<KdDbObjectId>& entities() const { return m_visit.entities(); }

    /// Of what is read so far, in the order in which they were met.
    const std::vector<MergedType>& types() const { return m_types; }
    /// What all entities of a type have; null: all entities of all types.
    std::vector<MergedProperty> common(const MergedType* type) const;

  private:
    static void take(void* context, const quick_select::Entity& entity);
    MergedType& typeOf(const quick_select::Entity& entity);

    const Module& m_module;
    SlicedVisit m_visit;
    std::vector<MergedType> m_types;
    std::unordered_map<std::wstring, std::size_t> m_typeByName;
};
