#include <database/database.h>

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
    for (const auto& notice : m_goodbyeNotices)
        notice(database);
    if (m_workingDatabase == &database)
        m_workingDatabase = nullptr;
}
