/// Entities that are visited a slice at a time, so that a window stays awake meanwhile.
#pragma once

#include <chrono>
#include <cstddef>
#include <vector>

#include <common/module.h>
#include <plugin/quick_select.h>

class SlicedVisit
{
  public:
    /// @param module  stays as long as this
    explicit SlicedVisit(const Module& module, std::vector<KdDbObjectId> entities = {});

    /// Visits on for about that long, in order. The entities must still be there.
    void goOn(std::chrono::milliseconds time, quick_select::EntityVisitor visitor, void* context);
    bool isDone() const { return m_next == m_entities.size(); }
    std::size_t visited() const { return m_next; }
    const std::vector<KdDbObjectId>& entities() const { return m_entities; }

  private:
    const Module* m_module;
    std::vector<KdDbObjectId> m_entities;
    std::size_t m_next = 0;
};
