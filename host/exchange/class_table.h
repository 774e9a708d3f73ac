// Finds the runtime class of a record in a drawing file.
#pragma once

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <runtime/rx_class.h>

#include "drawing_source.h"
#include "recent_names.h"

namespace dxf {

/// What is known of a record when its class is decided.
struct ClassHints
{
    const KdRxClass* marked = nullptr; ///< the class that a subclass marker named last
    const KdRxClass* parent = nullptr; ///< of the entity that a vertex follows
    int flags = 0;                     ///< group 70
    int count = 0;                     ///< group 71
};

/// The classes that records of one name may have.
class ClassEntry
{
  public:
    using Decide = const KdRxClass* (*)(const ClassHints&);

    explicit ClassEntry(const KdRxClass* rxClass) : m_classes{{"", rxClass}} {}

    /// True if one look at the name is not enough.
    bool isAmbiguous() const { return m_classes.size() > 1; }
    bool isUnknown() const { return m_unknown; }
    /// True if vertices or attributes may follow.
    bool hasParts() const { return m_hasParts; }
    /// The class that a subclass marker names, or null if it names none of this entry.
    const KdRxClass* ofMarker(std::string_view marker) const;
    const KdRxClass* decide(const ClassHints& hints) const;

  private:
    friend class ClassTable;
    struct Candidate
    {
        std::string marker;
        const KdRxClass* rxClass;
    };
    std::vector<Candidate> m_classes;
    Decide m_decide = nullptr;
    bool m_unknown = false;
    bool m_hasParts = false;
};

/// All classes below `base` that objects can be made of, by their names in drawing files.
class ClassTable
{
  public:
    /// Records of unknown names get `fallback`. Classes below `without` are left out.
    ClassTable(const KdRxClass* base, const KdRxClass* fallback,
               std::initializer_list<const KdRxClass*> without = {});

    /// The entry of a record's name. The name must stay where it is in memory.
    const ClassEntry& find(std::string_view recordName);
    /// Enters the kinds that the drawing itself names and whose class is known.
    void addForeign(std::span<const ForeignClass> classes);

  private:
    void add(const KdRxClass* rxClass, std::string dxfName);

    const KdRxClass* m_base;
    std::vector<const KdRxClass*> m_without;
    std::unordered_map<std::string, ClassEntry> m_known;
    std::unordered_map<std::string_view, const ClassEntry*> m_seen;
    ClassEntry m_unknown;
    RecentNames<const ClassEntry*> m_recent;
};

} // namespace dxf
