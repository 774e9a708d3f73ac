#include "output.h"

#include <filesystem>
#include <iostream>
#include <system_error>

bool Output::open(const std::string& file, bool overwrite, std::string& problem)
{
    m_isFile = !file.empty();
    if (!m_isFile)
        return true;
    std::error_code noCode;
    if (!overwrite && std::filesystem::exists(file, noCode)) {
        problem = file + " is there already; --overwrite replaces it";
        return false;
    }
    return m_file.open(file, {.overwrite = overwrite}, problem);
}

std::ostream& Output::stream()
{
    return m_isFile ? m_file : std::cout;
}

bool Output::finish(std::string& problem)
{
    if (m_isFile)
        return m_file.finish(problem);
    if (std::cout.flush())
        return true;
    problem = "the output can't be written";
    return false;
}
