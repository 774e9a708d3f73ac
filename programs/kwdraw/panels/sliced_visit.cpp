#include <kwdraw/panels/sliced_visit.h>

#include <algorithm>
#include <utility>

#include <common/selection_steps.h>

SlicedVisit::SlicedVisit(const Module& module, std::vector<KdDbObjectId> entities)
    : m_module(&module), m_entities(std::move(entities))
{
}

void SlicedVisit::goOn(std::chrono::milliseconds time, quick_select::EntityVisitor visitor,
                       void* context)
{
    constexpr std::size_t kAtATime = 16;
    const auto end = std::chrono::steady_clock::now() + time;
    while (!isDone() && std::chrono::steady_clock::now() < end) {
        const std::size_t stop = std::min(m_next + kAtATime, m_entities.size());
        const Ids slice(m_entities.begin() + static_cast<std::ptrdiff_t>(m_next),
                        m_entities.begin() + static_cast<std::ptrdiff_t>(stop));
        visitEntities(*m_module, slice, visitor, context);
        m_next = stop;
    }
}
