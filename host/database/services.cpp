#include <database/goodbye.h>

#include <mutex>
#include <unordered_set>

#include <database/database.h>

namespace {

/// The drawings that everybody has let go of, but that still stand.
class Departed
{
  public:
    void add(const KdDbDatabase& database)
    {
        const std::lock_guard lock(m_mutex);
        m_databases.insert(&database);
    }
    /// True if the drawing was one of them.
    bool remove(const KdDbDatabase& database)
    {
        const std::lock_guard lock(m_mutex);
        return m_databases.erase(&database) > 0;
    }

  private:
    std::mutex m_mutex;
    std::unordered_set<const KdDbDatabase*> m_databases;
};

Departed& departed()
{
    static auto* const databases = new Departed; // as the services below
    return *databases;
}

} // namespace

KdDbHostApplicationServices* kddbHostApplicationServices()
{
    // Never destroyed: a database that goes with the last statics still says goodbye.
    static auto* const services = new KdDbHostApplicationServices;
    return services;
}

void KdDbHostApplicationServices::addGoodbyeNotice(std::function<void(KdDbDatabase&)> notice)
{
    m_goodbyeNotices.push_back(std::move(notice));
}

void KdDbHostApplicationServices::sayGoodbye(KdDbDatabase& database)
{
    if (departed().remove(database))
        return;
    for (const auto& notice : m_goodbyeNotices)
        notice(database);
    if (m_workingDatabase == &database)
        m_workingDatabase = nullptr;
}

void kddbSayGoodbye(KdDbDatabase& database)
{
    kddbHostApplicationServices()->sayGoodbye(database);
    departed().add(database);
}
