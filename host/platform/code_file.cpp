#include <platform/code_file.h>

#include <system_error>

#include <dlfcn.h>

std::filesystem::path kdFileOfCode(const void* address)
{
    Dl_info info{};
    if (dladdr(address, &info) == 0 || !info.dli_fname)
        return {};
    std::error_code error;
    const auto resolved = std::filesystem::canonical(info.dli_fname, error);
    return error ? std::filesystem::path(info.dli_fname) : resolved;
}
