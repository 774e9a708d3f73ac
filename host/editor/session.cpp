#include "session.h"

#include <thread>

EditorSession& EditorSession::instance()
{
    // Never destroyed: the last database may go later than anything here would.
    static EditorSession* const session = new EditorSession;
    return *session;
}

EditorSession::EditorSession()
{
    const auto mainThread = std::this_thread::get_id();
    kddbHostApplicationServices()->addGoodbyeNotice([this, mainThread](KdDbDatabase& database) {
        // A drawing that goes in the thread that reads it has never been the editor's.
        if (std::this_thread::get_id() != mainThread)
            return;
        sets.freeAllOf(database);
        m_drawings.erase(&database);
    });
}
