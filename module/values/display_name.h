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

/// Display names for the length of a run, in which a class of the table is looked up once. The name
/// of every other class is asked for anew, since entities of one class may have different ones.
class DisplayNames
{
  public:
    /// As `GetLocalNameOfKdDbEntityEx`; valid until the next call.
    const CStdStr<wchar_t>& of(const KdDbEntity& entity);
    /// The name that all entities of a class have; null where each may have another. Valid until
    /// the next call.
    const CStdStr<wchar_t>* ofClass(const KdRxClass* rxClass);

  private:
    struct ClassName
    {
        bool isKnown = false;
        bool isOfAll = false; ///< all entities of the class have it
        CStdStr<wchar_t> text;
    };

    ClassMap<ClassName> m_ofClasses;
    CStdStr<wchar_t> m_ofEntity;
};

/// The display name that the host's object model gives to an entity's type; empty if it has none.
CStdStr<wchar_t> GetEntityDisplayName(KdDbObjectId id);

/// The class id of an object in the host's object model; entities without one of their own get the
/// id of entities at large.
/// @return 1, or 0 with `classId` untouched if the object can't be opened or is no entity
int GetCLSID(CLSID& classId, KdDbObjectId id);
