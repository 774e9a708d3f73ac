// For builds that measure which lines run: what a process has run counts as well if it aborts, as
// those of death tests do.
#include <csignal>

extern "C" void __gcov_dump();

namespace {

void dump(int)
{
    __gcov_dump();
}

[[maybe_unused]] const auto kBefore = std::signal(SIGABRT, dump);

} // namespace
