#include "whole_reading.h"

#include <algorithm>
#include <atomic>
#include <deque>
#include <exception>
#include <thread>
#include <vector>

#include <sched.h>

#include "member_source.h"

namespace dxf {
namespace {

using Progress = std::function<bool(double)>;

/// Most objects are read by several threads, each with a source and storage of its own. Those whose
/// readers look into other objects, and those with something to be noted, are left for later.
class SharedReading
{
  public:
    SharedReading(DrawingSource& source, const Progress& progress)
        : m_source(source), m_progress(progress), m_objects(source.database.objects())
    {
    }

    /// False if cancelled; otherwise `left` receives the places of the objects that are left.
    bool run(unsigned threads, std::vector<std::size_t>& left)
    {
        KdDbObjectId none;
        m_source.database.getObjectId(none, 0); // sorts the handles, once and before all others ask
        std::deque<Worker> workers;
        for (unsigned i = 0; i < threads; ++i)
            workers.push_back({KdDbDatabaseBuilder(m_source.database).addArena(), {}, {}});
        {
            std::vector<std::jthread> helpers;
            for (unsigned i = 1; i < threads; ++i)
                helpers.emplace_back([this, &worker = workers[i]] { tryWork(worker, {}); });
            tryWork(workers[0], m_progress);
        }
        for (const Worker& worker : workers) {
            if (worker.failure)
                std::rethrow_exception(worker.failure);
            left.insert(left.end(), worker.left.begin(), worker.left.end());
        }
        std::ranges::sort(left);
        return !m_isCancelled;
    }

  private:
    static constexpr std::size_t kObjectsAtOnce = 1024;

    struct Worker
    {
        KdDbArena& arena;
        std::vector<std::size_t> left; ///< places of objects
        std::exception_ptr failure;
    };

    void tryWork(Worker& worker, const Progress& progress)
    {
        try {
            work(worker, progress);
        } catch (...) {
            worker.failure = std::current_exception();
            m_next = m_objects.size(); // the others need not go on
        }
    }

    void work(Worker& worker, const Progress& progress)
    {
        DrawingSource own(DrawingSource::Beside{m_source});
        for (;;) {
            const std::size_t begin = m_next.fetch_add(kObjectsAtOnce);
            if (begin >= m_objects.size())
                return;
            if (progress &&
                !progress(static_cast<double>(begin) / static_cast<double>(m_objects.size()))) {
                m_isCancelled = true;
                m_next = m_objects.size();
                return;
            }
            const std::size_t end = std::min(begin + kObjectsAtOnce, m_objects.size());
            for (std::size_t i = begin; i < end; ++i) {
                if (!read(own, worker.arena, *m_objects[i]))
                    worker.left.push_back(i);
            }
        }
    }

    /// False if the object is left.
    bool read(DrawingSource& own, KdDbArena& arena, KdDbObject& object)
    {
        if (object.source().length == 0 || !mayBeReadBeside(object))
            return false;
        const std::size_t findings = own.findings.total();
        own.hasLeft = false;
        bool isKept = false;
        KdDbDatabaseBuilder(m_source.database).fill(object, arena, [&](ObjectMembers& members) {
            readMembers(own, object, object.source(), members);
            isKept = own.findings.total() == findings && !own.hasLeft;
            return isKept;
        });
        return isKept;
    }

    DrawingSource& m_source;
    const Progress& m_progress;
    const std::vector<KdDbObject*>& m_objects;
    std::atomic<std::size_t> m_next{0};
    bool m_isCancelled = false;
};

/// Reads objects one by one. Reports by the bytes that were read and by the number of objects,
/// since both take their time.
class ReadingInOrder
{
  public:
    ReadingInOrder(std::size_t bytes, std::size_t objects, const Progress& progress)
        : m_all(bytes + kObjectCost * objects), m_progress(progress)
    {
    }

    /// False if cancelled.
    bool read(const KdDbObject& object)
    {
        if (m_progress && m_done >= m_nextReport) {
            const std::size_t done = std::min(m_done, m_all); // more may come up than was known
            if (!m_progress(static_cast<double>(done) / static_cast<double>(m_all)))
                return false;
            m_nextReport = m_done + kBytesBetweenReports;
        }
        object.extensionDictionary(); // any member brings all
        m_done += object.source().length + kObjectCost;
        return true;
    }

  private:
    static constexpr std::size_t kBytesBetweenReports = 1u << 20;
    static constexpr std::size_t kObjectCost = 64; ///< counts as so many bytes

    std::size_t m_all;
    const Progress& m_progress;
    std::size_t m_done = 0;
    std::size_t m_nextReport = 0;
};

/// Reads the objects from the place `begin` on. Reading a member may add a record that was only
/// referred to, so the end moves.
bool readFrom(std::size_t begin, const std::vector<KdDbObject*>& objects, ReadingInOrder& reading)
{
    for (std::size_t i = begin; i < objects.size(); ++i) {
        if (!reading.read(*objects[i]))
            return false;
    }
    return true;
}

bool readAll(const DrawingSource& source, const Progress& progress)
{
    const std::vector<KdDbObject*>& objects = source.database.objects();
    ReadingInOrder reading(source.form.bytes.size(), objects.size(), progress);
    return readFrom(0, objects, reading);
}

/// Reads the objects at those places, and what is added meanwhile.
bool readLeft(const DrawingSource& source, const std::vector<std::size_t>& left,
              const Progress& progress)
{
    const std::vector<KdDbObject*>& objects = source.database.objects();
    const std::size_t known = objects.size();
    std::size_t bytes = 0;
    for (const std::size_t place : left)
        bytes += objects[place]->source().length;
    ReadingInOrder reading(bytes, left.size(), progress);
    return std::ranges::all_of(left,
                               [&](std::size_t place) { return reading.read(*objects[place]); }) &&
           readFrom(known, objects, reading);
}

} // namespace

unsigned threadsWorthWhile(const KdDbDatabase& database)
{
    constexpr std::size_t kWorthSharing = 10000; // objects
    cpu_set_t set;
    if (database.objects().size() < kWorthSharing || sched_getaffinity(0, sizeof set, &set) != 0)
        return 1;
    constexpr int kMost = 8; // memory is what bounds the speed then
    return static_cast<unsigned>(std::clamp(CPU_COUNT(&set), 1, kMost));
}

bool readAllMembers(DrawingSource& source, const Progress& progress, unsigned threads)
{
    constexpr double kShared = 0.8; // of the work, as far as is known beforehand
    source.decoder.decide();        // at the same time with any number of threads
    if (threads < 2)
        return readAll(source, progress);
    Progress sharing;
    Progress rest;
    if (progress) {
        sharing = [&progress](double part) { return progress(kShared * part); };
        rest = [&progress](double part) { return progress(kShared + (1.0 - kShared) * part); };
    }
    std::vector<std::size_t> left;
    return SharedReading(source, sharing).run(threads, left) && readLeft(source, left, rest);
}

} // namespace dxf
