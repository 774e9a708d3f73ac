#include "interrupt.h"

namespace {

volatile std::sig_atomic_t interrupted = 0;

void noteInterrupt(int)
{
    interrupted = 1;
}

} // namespace

InterruptWatch::InterruptWatch()
{
    sigaction(SIGINT, nullptr, &m_before);
    if (m_before.sa_handler == SIG_IGN)
        return;
    struct sigaction action = {};
    action.sa_handler = noteInterrupt;
    action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
    sigaction(SIGINT, &action, nullptr);
}

InterruptWatch::~InterruptWatch()
{
    sigaction(SIGINT, &m_before, nullptr);
}

bool InterruptWatch::wasInterrupted()
{
    return interrupted != 0;
}
