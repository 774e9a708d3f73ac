#include <editor/display.h>

#include <utility>

namespace {

std::function<void()>& installedHook()
{
    static std::function<void()> hook;
    return hook;
}

} // namespace

void kdedUpdateDisplay()
{
    // A copy, so that the hook may replace itself.
    if (const std::function<void()> hook = installedHook())
        hook();
}

std::function<void()> kdedSetUpdateDisplayHook(std::function<void()> hook)
{
    return std::exchange(installedHook(), std::move(hook));
}
