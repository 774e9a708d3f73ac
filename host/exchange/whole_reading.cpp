#include "whole_reading.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <thread>

#include <sched.h>

#include "member_source.h"

namespace dxf {
namespace {

using Progress = std::function<bool(double)>;

/// Most objects are read by several threads, each with a source and storage of its own. Those whose
/// readers look at other objects, and those with something to be noted, are left for later.
class SharedReading
{
  public:
    SharedReading(DrawingSource& source, const Progress& progress)
        : m_source(source), m_progress(progress), m_objects(source.database.objects())
    {
    }

    /// False if cancelled.
    bool run(unsigned threads)
    {
        KdDbObjectId none;
        m_source.database.getObjectId(none, 0); // sorts the handles, once and before all others ask
        std::vector<std::exception_ptr> failures(threads);
        {
            std::vector<std::jthread> helpers;
            for (unsigned i = 1; i < threads; ++i) {
                KdDbArena& arena = KdDbDatabaseBuilder(m_source.database).addArena();
                helpers.emplace_back(
                    [this, &arena, &failure = failures[i]] { tryWork(arena, {}, failure); });
            }
            tryWork(KdDbDatabaseBuilder(m_source.database).addArena(), m_progress, failures[0]);
        }
        for (const std::exception_ptr& failure : failures) {
            if (failure)
                std::rethrow_exception(failure);
        }
        return !m_isCancelled;
    }

  private:
    static constexpr std::size_t kObjectsAtOnce = 1024;

    void tryWork(KdDbArena& arena, const Progress& progress, std::exception_ptr& failure)
    {
        try {
            work(arena, progress);
        } catch (...) {
            failure = std::current_exception();
            m_next = m_objects.size(); // the others need not go on
        }
    }

    void work(KdDbArena& arena, const Progress& progress)
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
            for (std::size_t i = begin; i < end; ++i)
                read(own, arena, *m_objects[i]);
        }
    }

    void read(DrawingSource& own, KdDbArena& arena, KdDbObject& object)
    {
        if (object.source().length == 0 || !mayBeReadBeside(object))
            return;
        const std::size_t findings = own.findings.total();
        KdDbDatabaseBuilder(m_source.database).fill(object, arena, [&](ObjectMembers& members) {
            readMembers(own, object, object.source(), members);
            return own.findings.total() == findings;
        });
    }

    DrawingSource& m_source;
    const Progress& m_progress;
    const std::vector<KdDbObject*>& m_objects;
    std::atomic<std::size_t> m_next{0};
    bool m_isCancelled = false;
};

/// Reads what is left, in the order of the objects. Reports by the bytes that were read and by the
/// number of objects, since both take their time.
bool readRest(const DrawingSource& source, const Progress& progress)
{
    constexpr std::size_t kBytesBetweenReports = 1u << 20;
    constexpr std::size_t kObjectCost = 64; // counts as so many bytes
    const std::vector<KdDbObject*>& objects = source.database.objects();
    const std::size_t all = source.form.bytes.size() + kObjectCost * objects.size();
    std::size_t done = 0;
    std::size_t nextReport = 0;
    // Reading a member may add a record that was only referred to, so the end moves.
    for (std::size_t i = 0; i < objects.size(); ++i) {
        if (progress && done >= nextReport) {
            if (!progress(static_cast<double>(std::min(done, all)) / static_cast<double>(all)))
                return false;
            nextReport = done + kBytesBetweenReports;
        }
        const KdDbObject& object = *objects[i];
        object.extensionDictionary(); // any member brings all
        done += object.source().length + kObjectCost;
    }
    return true;
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
        return readRest(source, progress);
    Progress sharing;
    Progress rest;
    if (progress) {
        sharing = [&progress](double part) { return progress(kShared * part); };
        rest = [&progress](double part) { return progress(kShared + (1.0 - kShared) * part); };
    }
    return SharedReading(source, sharing).run(threads) && readRest(source, rest);
}

} // namespace dxf
