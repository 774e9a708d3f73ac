#include <database/id_iterator.h>

KdDbIdIterator::KdDbIdIterator(const std::vector<KdDbObjectId>& ids, bool atBeginning,
                               bool skipErased)
    : m_ids(ids)
{
    start(atBeginning, skipErased);
}

void KdDbIdIterator::start(bool atBeginning, bool skipErased)
{
    // In an empty list the last place is a huge index, which is behind the end as well.
    m_index = atBeginning ? 0 : m_ids.size() - 1;
    if (skipErased)
        skipErasedObjects(atBeginning);
}

void KdDbIdIterator::step(bool forward, bool skipErased)
{
    if (done())
        return;
    move(forward);
    if (skipErased)
        skipErasedObjects(forward);
}

void KdDbIdIterator::skipErasedObjects(bool forward)
{
    while (!done() && m_ids[m_index].isErased())
        move(forward);
}

KdErrorStatus KdDbIdIterator::currentId(KdDbObjectId& id) const
{
    if (done())
        return eOutOfRange;
    id = m_ids[m_index];
    return eOk;
}
