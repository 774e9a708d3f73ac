// What the sanitizers are told when they are built in; otherwise nobody calls this.
#include <runtime/export.h>

#include <sanitizer/asan_interface.h>
#include <sanitizer/lsan_interface.h>

extern "C" KW_EXPORT const char* __asan_default_options()
{
    return "fast_unwind_on_malloc=0"; // the platform plugin only shows up in complete call stacks
}

extern "C" KW_EXPORT const char* __lsan_default_suppressions()
{
    return "leak:libqoffscreen.so\n"; // it never gives its screen back
}
