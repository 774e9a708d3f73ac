/// The names under which types of entities appear to the user, and by which a run tells them apart.
#pragma once

#include <database/entity.h>
#include <platform/com.h>
#include <runtime/std_str.h>

#include <values/class_map.h>

/// The display name of an entity's type, from the module's table of classes or else from the host's
/// object model. Empty for null, for a class of the table without a text, and where the object
/// model has no name. Takes constant time for the classes of the table.
CStdStr<wchar_t> GetLocalNameOfKdDbEntityEx(const KdDbEntity* entity);

/// Display names for the length of a run, in which what all entities of a class share is looked up
/// once. A block reference may have a name of its own where something reacts to it, since arrays
/// and centre objects are such references; then it is asked for itself.
class DisplayNames
{
  public:
    /// As `GetLocalNameOfKdDbEntityEx`; valid until the next call.
    const CStdStr<wchar_t>& of(const KdDbEntity& entity);
    /// The name that all entities of a class have; null where each may have another, and where it
    /// is not known before an entity is asked. Valid until the next call.
    const CStdStr<wchar_t>* ofClass(const KdRxClass* rxClass);

  private:
    struct ClassName
    {
        bool isKnown = false; ///< what follows is found out
        bool isOfAll = false; ///< all entities of the class have `text`
        bool mayVary = false; ///< only those to which nothing reacts have `text`
        CStdStr<wchar_t> text;
    };

    ClassName& nameOf(const KdRxClass& rxClass);

    ClassMap<ClassName> m_ofClasses;
    CStdStr<wchar_t> m_ofEntity;
};

/// The display name that the host's object model gives to an entity's type; empty if it has none.
CStdStr<wchar_t> GetEntityDisplayName(KdDbObjectId id);

/// The class id of an object in the host's object model; entities without one of their own get the
/// id of entities at large.
/// @return 1, or 0 with `classId` untouched if the object can't be opened or is no entity
int GetCLSID(CLSID& classId, KdDbObjectId id);
