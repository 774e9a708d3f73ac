#include "session.h"

EditorSession& EditorSession::instance()
{
    // Never destroyed: the last database may go later than anything here would.
    static EditorSession* const session = new EditorSession;
    return *session;
}

EditorSession::EditorSession()
{
    kddbHostApplicationServices()->addGoodbyeNotice([this](KdDbDatabase& database) {
        sets.freeAllOf(database);
        m_drawings.erase(&database);
    });
}
