#include <database/layer_filters.h>

KdErrorStatus KdLyLayerFilterManager::getFilters(const KdLyLayerFilter*& root,
                                                 const KdLyLayerFilter*& current) const
{
    root = &m_all;
    current = &m_all;
    return eOk;
}

const KdLyLayerFilterManager* kdlyGetLayerFilterManager(const KdDbDatabase* database)
{
    static const KdLyLayerFilterManager manager;
    return database ? &manager : nullptr;
}
