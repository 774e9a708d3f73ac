#include "lost_pages.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <mutex>

#include <sys/mman.h>
#include <unistd.h>

namespace dxf {
namespace {

// A signal may come at any time and in any thread, so places are kept where no lock is needed to
// look at them.
struct Place
{
    std::atomic<std::uintptr_t> begin{0}; ///< 0: not watched
    std::atomic<std::uintptr_t> end{0};
    std::atomic<bool> hasLost{false};
};

constexpr int kMostPlaces = 64;
Place g_places[kMostPlaces];
std::mutex g_mutex; ///< for changes of the list
struct sigaction g_before;
std::uintptr_t g_pageSize = 0;

static_assert(std::atomic<std::uintptr_t>::is_always_lock_free);

bool giveEmptyPages(Place& place, std::uintptr_t from)
{
    const std::uintptr_t end = place.end;
    if (from < place.begin || from >= end || place.begin == 0)
        return false;
    place.hasLost = true;
    void* const page = reinterpret_cast<void*>(from & ~(g_pageSize - 1));
    return mmap(page, end - reinterpret_cast<std::uintptr_t>(page), PROT_READ,
                MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED, -1, 0) != MAP_FAILED;
}

void passOn(int signal, siginfo_t* info, void* context)
{
    if ((g_before.sa_flags & SA_SIGINFO) != 0)
        g_before.sa_sigaction(signal, info, context);
    else if (g_before.sa_handler != SIG_DFL && g_before.sa_handler != SIG_IGN)
        g_before.sa_handler(signal);
    else
        sigaction(SIGBUS, &g_before, nullptr); // on return the access fails again, for good
}

void onBusError(int signal, siginfo_t* info, void* context)
{
    const int errorBefore = errno;
    const auto where = reinterpret_cast<std::uintptr_t>(info->si_addr);
    bool isDone = false;
    for (Place& place : g_places)
        isDone = isDone || giveEmptyPages(place, where);
    errno = errorBefore;
    if (!isDone)
        passOn(signal, info, context);
}

void install()
{
    g_pageSize = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
    struct sigaction action
    {
    };
    action.sa_sigaction = onBusError;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK;
    sigemptyset(&action.sa_mask);
    sigaction(SIGBUS, &action, &g_before);
}

} // namespace

int LostPages::watch(const void* begin, std::size_t size)
{
    static std::once_flag installed;
    std::call_once(installed, install);
    const std::lock_guard lock(g_mutex);
    for (int number = 0; number < kMostPlaces; ++number) {
        Place& place = g_places[number];
        if (place.begin != 0)
            continue;
        place.hasLost = false;
        place.end = reinterpret_cast<std::uintptr_t>(begin) + size;
        place.begin = reinterpret_cast<std::uintptr_t>(begin);
        return number;
    }
    return -1;
}

void LostPages::forget(int number)
{
    if (number >= 0)
        g_places[number].begin = 0;
}

bool LostPages::hasLost(int number)
{
    return number >= 0 && g_places[number].hasLost;
}

} // namespace dxf
