#include <kwdraw/window/object_picking.h>

#include <runtime/resbuf.h>

#include <QEventLoop>

#include <unordered_set>
#include <utility>

ObjectPicking::ObjectPicking(QObject* parent) : QObject(parent)
{
    kduiSetEditorPrompt(this);
}

ObjectPicking::~ObjectPicking()
{
    kduiSetEditorPrompt(nullptr);
}

void ObjectPicking::add(const Ids& ids)
{
    std::unordered_set<KdDbObjectId> known(m_picked.begin(), m_picked.end());
    for (const KdDbObjectId id : ids) {
        if (known.insert(id).second)
            m_picked.push_back(id);
    }
    emit changed();
}

void ObjectPicking::remove(const Ids& ids)
{
    const std::unordered_set<KdDbObjectId> leaving(ids.begin(), ids.end());
    std::erase_if(m_picked, [&](KdDbObjectId id) { return leaving.contains(id); });
    emit changed();
}

void ObjectPicking::beginEditorCommand()
{
    emit attentionWanted();
}

int ObjectPicking::pickObjects(std::vector<KdDbObjectId>& picked)
{
    if (isPicking())
        return RTCAN; // one command waits already
    QEventLoop loop;
    m_loop = &loop;
    m_status = RTCAN;
    m_picked.clear();
    emit begun();
    loop.exec();
    m_loop = nullptr;
    emit ended();
    if (m_status == RTNORM)
        picked = std::exchange(m_picked, {});
    m_picked.clear();
    return m_status;
}

void ObjectPicking::end(int status)
{
    if (!m_loop)
        return;
    m_status = status;
    m_loop->quit();
}

void ObjectPicking::finish()
{
    end(RTNORM);
}

void ObjectPicking::giveUp()
{
    end(RTCAN);
}
