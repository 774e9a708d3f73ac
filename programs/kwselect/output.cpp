#include "output.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool fail(std::string& problem, const std::string& file)
{
    problem = file + ": " + std::strerror(errno);
    return false;
}

/// Makes sure that the bytes of a file lie on the disk.
bool synchronise(const std::string& file)
{
    const int descriptor = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    const bool done = descriptor >= 0 && fsync(descriptor) == 0;
    if (descriptor >= 0)
        close(descriptor);
    return done;
}

} // namespace

Output::~Output()
{
    if (!m_temporary.empty())
        unlink(m_temporary.c_str());
}

bool Output::open(const std::string& file, bool overwrite, std::string& problem)
{
    m_file = file;
    if (file.empty())
        return true;
    std::error_code noCode;
    if (!overwrite && std::filesystem::exists(file, noCode)) {
        problem = file + " is there already; --overwrite replaces it";
        return false;
    }
    std::string name = file + ".XXXXXX"; // in the same folder, so that it can take the place
    const int descriptor = mkostemp(name.data(), O_CLOEXEC);
    if (descriptor < 0)
        return fail(problem, file);
    m_temporary = name;
    const mode_t mask = umask(0);
    umask(mask);
    fchmod(descriptor, 0666 & ~mask);
    close(descriptor);
    m_stream.open(name, std::ios::binary | std::ios::trunc);
    return m_stream.is_open() || fail(problem, file);
}

std::ostream& Output::stream()
{
    return m_file.empty() ? std::cout : m_stream;
}

bool Output::finish(std::string& problem)
{
    stream().flush();
    if (!stream()) {
        problem = m_file.empty() ? "the output can't be written"
                                 : m_file + ": the output can't be written";
        return false;
    }
    if (m_file.empty())
        return true;
    m_stream.close();
    if (!synchronise(m_temporary) || rename(m_temporary.c_str(), m_file.c_str()) != 0)
        return fail(problem, m_file);
    m_temporary.clear();
    return true;
}
