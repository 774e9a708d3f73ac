/// Selection sets of the host as lists of ids.
#pragma once

#include <vector>

#include <database/object_id.h>

/// A selection set of the host, freed at the end of the scope.
class EntitySet
{
  public:
    /// Its members are the entities in their order, each once.
    explicit EntitySet(const std::vector<KdDbObjectId>& entities = {});
    ~EntitySet();
    EntitySet(const EntitySet&) = delete;
    EntitySet& operator=(const EntitySet&) = delete;

    /// As the host's operations name it.
    long* name() { return m_name; }

  private:
    kds_name m_name = {0, 0};
};

/// What is selected in the working drawing, in its order.
std::vector<KdDbObjectId> pickfirstEntities();
/// Selects these and nothing else.
void setPickfirstEntities(const std::vector<KdDbObjectId>& entities);
