#include "view_painter.h"

#include <QThread>

#include <algorithm>

#include "scene_painting.h"

namespace {

/// So many pictures in a row may be given up because the view moved on.
constexpr int kCancelledInARow = 3;

std::size_t numberOf(ViewLayer layer)
{
    return static_cast<std::size_t>(layer);
}

} // namespace

ViewPainter::ViewPainter(std::function<void()> ready)
    : m_ready(std::move(ready)), m_thread(QThread::create([this] { run(); }))
{
    m_thread->setObjectName(QStringLiteral("ViewPainter"));
    m_thread->start();
}

ViewPainter::~ViewPainter()
{
    {
        const Lock lock(m_mutex);
        m_stop = true;
        m_cancelled = true;
        m_changed.notify_all();
    }
    m_thread->wait();
}

void ViewPainter::submit(const ViewRequest& request)
{
    const Lock lock(m_mutex);
    if (m_painted.index && m_painted.index->scene() != request.scene)
        m_painted.index = nullptr;
    m_request = request;
    m_isIdle = false;
    if (m_running && !samePicture(*m_running, m_runningRequest, request)) {
        const bool moved = sameButForPlace(*m_running, m_runningRequest, request);
        if (!moved || m_cancelledInARow < kCancelledInARow)
            m_cancelled = true;
    }
    m_changed.notify_all();
}

PaintedView ViewPainter::painted() const
{
    const Lock lock(m_mutex);
    return m_painted;
}

PaintedView ViewPainter::finished()
{
    Lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_isIdle; });
    return m_painted;
}

void ViewPainter::run()
{
    Lock lock(m_mutex);
    while (!m_stop) {
        if (workOnce(lock))
            continue;
        m_isIdle = true;
        m_changed.notify_all();
        m_changed.wait(lock, [this] { return m_stop || !m_isIdle; });
    }
}

/// Does the first thing that is to be done; false if there is nothing.
bool ViewPainter::workOnce(Lock& lock)
{
    if (!m_request.scene)
        m_lastIndex = nullptr;
    else if (!m_painted.index)
        return makeIndex(lock);
    for (const ViewLayer layer : {ViewLayer::Drawing, ViewLayer::Marks, ViewLayer::Hover}) {
        const std::size_t number = numberOf(layer);
        if (m_isPainted[number] && samePicture(layer, m_painted.pictures[number].source, m_request))
            continue;
        paint(lock, layer);
        return true;
    }
    return false;
}

bool ViewPainter::makeIndex(Lock& lock)
{
    const std::shared_ptr<const Scene> scene = m_request.scene;
    lock.unlock();
    std::shared_ptr<const SceneIndex> index = indexFor(scene);
    m_lastIndex = index;
    lock.lock();
    if (m_request.scene == scene) {
        m_painted.index = std::move(index);
        m_ready();
    }
    return true;
}

void ViewPainter::paint(Lock& lock, ViewLayer layer)
{
    m_running = layer;
    m_runningRequest = m_request;
    m_cancelled = m_stop;
    const ViewRequest request = m_request;
    const std::shared_ptr<const SceneIndex> index = m_painted.index;
    lock.unlock();
    ViewPicture picture{{}, {}, request};
    if (request.scene && !request.size.isEmpty())
        picture = paintLayer(layer, request, *index, m_glyphs, m_cancelled);
    lock.lock();
    m_running.reset();
    if (m_cancelled) {
        ++m_cancelledInARow;
        return;
    }
    m_cancelledInARow = 0;
    m_isPainted[numberOf(layer)] = true;
    m_painted.pictures[numberOf(layer)] = std::move(picture);
    m_ready();
}

std::shared_ptr<const SceneIndex> ViewPainter::indexFor(const std::shared_ptr<const Scene>& scene)
{
    std::erase_if(m_known, [](const auto& known) { return known.expired(); });
    for (const auto& known : m_known)
        if (auto index = known.lock(); index && index->scene() == scene)
            return index;
    SceneIndex::Models models;
    for (const SceneWindow& window : scene->windows)
        models.push_back(window.model ? indexFor(window.model) : nullptr);
    auto index = std::make_shared<const SceneIndex>(scene, std::move(models));
    m_known.push_back(index);
    return index;
}
