/// The candidates of a run, with what has to be known of each to pass over most of them.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include <values/class_map.h>
#include <values/display_name.h>

/// What a run tells apart by class and display name.
struct CandidateKind
{
    const KdRxClass* rxClass;
    std::wstring displayName;
    const KdDbEntity* first; ///< of its candidates
    std::size_t count = 0;   ///< of its candidates
};

/// What is noted of one candidate, so that the entity itself is only looked at where it is asked
/// for a property.
struct CandidateNote
{
    std::uint32_t kind;  ///< its number in the list of kinds
    std::uint32_t layer; ///< its number in the list of layers
};

/// Entities in the order in which they were added, with a note for each. Copies share everything,
/// so a list that has been copied is not to be added to.
class CandidateList
{
  public:
    using value_type = KdDbEntity*;
    using const_iterator = std::vector<KdDbEntity*>::const_iterator;

    CandidateList() : m_content(std::make_shared<Content>()) {}
    CandidateList(std::initializer_list<KdDbEntity*> entities);

    /// Makes room, where it is known how many entities will come at most.
    void reserve(std::size_t entities);
    /// Adds an entity, whose class must be known. The note holds as long as the entity does not
    /// change.
    /// @return  the entity's kind
    std::uint32_t add(KdDbEntity& entity);

    std::size_t size() const { return m_content->entities.size(); }
    bool empty() const { return m_content->entities.empty(); }
    const_iterator begin() const { return m_content->entities.begin(); }
    const_iterator end() const { return m_content->entities.end(); }
    KdDbEntity& operator[](std::size_t number) const { return *m_content->entities[number]; }
    const CandidateNote& note(std::size_t number) const { return m_content->notes[number]; }
    /// Those that were met, in that order.
    const std::vector<CandidateKind>& kinds() const { return m_content->kinds; }
    const CandidateKind& kindOf(std::size_t number) const { return kinds()[note(number).kind]; }
    /// Those that were met, in that order; the null id may be among them.
    const std::vector<KdDbObjectId>& layers() const { return m_content->layers; }

  private:
    struct KindsOfClass
    {
        bool hasOneName = false; ///< `last` is the kind of all entities of the class
        std::uint32_t last = 0;
        std::unordered_map<std::wstring, std::uint32_t> byName;
    };
    struct Content
    {
        std::vector<KdDbEntity*> entities;
        std::vector<CandidateNote> notes;
        std::vector<CandidateKind> kinds;
        std::vector<KdDbObjectId> layers;
        ClassMap<KindsOfClass> ofClasses;
        /// Counted from 1; 0: none was given yet.
        PlaceMap<KdDbObjectId, std::uint32_t> layerNumbers;
        DisplayNames names;
    };

    std::uint32_t kindOf(const KdDbEntity& entity);
    std::uint32_t layerOf(const KdDbEntity& entity);

    std::shared_ptr<Content> m_content;
};
