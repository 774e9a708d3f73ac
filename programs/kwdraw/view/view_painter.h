/// Paints pictures of scenes in a thread of its own.
#pragma once

#include <array>
#include <atomic>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include "glyphs.h"
#include "scene_index.h"
#include "view_request.h"

class QThread;

/// What has been painted so far.
struct PaintedView
{
    std::array<ViewPicture, kViewLayers> pictures;
    std::shared_ptr<const SceneIndex> index; ///< of the scene that is asked for; null until made
};

/// Only the newest request counts: a picture that is no longer asked for is given up. While the
/// place alone changes all the time, a picture is finished now and then nevertheless, for there
/// would be none to see otherwise.
class ViewPainter
{
  public:
    /// @param ready  called in the painting thread as soon as there is something new
    explicit ViewPainter(std::function<void()> ready);
    /// Gives up what is being painted.
    ~ViewPainter();
    ViewPainter(const ViewPainter&) = delete;
    ViewPainter& operator=(const ViewPainter&) = delete;

    void submit(const ViewRequest& request);
    PaintedView painted() const;
    /// Waits until all pictures of the last request are there.
    PaintedView finished();

  private:
    using Lock = std::unique_lock<std::mutex>;

    void run();
    bool workOnce(Lock& lock);
    bool makeIndex(Lock& lock);
    void paint(Lock& lock, ViewLayer layer);
    std::shared_ptr<const SceneIndex> indexFor(const std::shared_ptr<const Scene>& scene);

    mutable std::mutex m_mutex; ///< guards all below up to `m_cancelled`
    std::condition_variable m_changed;
    std::function<void()> m_ready;
    ViewRequest m_request;
    PaintedView m_painted;
    std::array<bool, kViewLayers> m_isPainted{}; ///< for any request
    std::optional<ViewLayer> m_running;
    ViewRequest m_runningRequest;
    int m_cancelledInARow = 0;
    bool m_isIdle = true;
    bool m_stop = false;
    std::atomic<bool> m_cancelled = false;

    // For the thread alone.
    std::shared_ptr<const SceneIndex> m_lastIndex; ///< keeps the model's for the next sheet
    std::vector<std::weak_ptr<const SceneIndex>> m_known;
    GlyphStore m_glyphs;
    std::unique_ptr<QThread> m_thread;
};
