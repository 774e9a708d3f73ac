#include <common/recent_filters.h>

#include <algorithm>
#include <fstream>
#include <system_error>
#include <utility>

#include <common/filter_file.h>
#include <runtime/safe_file.h>
#include <runtime/utf8.h>

RecentFilters::RecentFilters(std::filesystem::path file) : m_file(std::move(file))
{
    readAgain();
}

bool RecentFilters::readAgain()
{
    std::ifstream stream(m_file);
    if (!stream) // there is none yet, or none can be written: what is known stays
        return false;
    std::vector<std::wstring> texts;
    for (std::string line; texts.size() < kMost && std::getline(stream, line);) {
        if (!line.empty())
            texts.push_back(kdFromUtf8(line));
    }
    std::swap(m_texts, texts);
    return m_texts != texts;
}

void RecentFilters::note(const std::wstring& text)
{
    if (text.empty() || text.find_first_of(L"\r\n") != std::wstring::npos)
        return;
    readAgain();
    std::erase(m_texts, text);
    m_texts.insert(m_texts.begin(), text);
    m_texts.resize(std::min(m_texts.size(), kMost));
    write();
}

void RecentFilters::clear()
{
    m_texts.clear();
    write();
}

void RecentFilters::write() const
{
    std::string bytes;
    for (const std::wstring& text : m_texts)
        bytes += kdToUtf8(text) + '\n';
    std::error_code noCode;
    std::filesystem::create_directories(m_file.parent_path(), noCode);
    KdString error;
    kdWriteFile(m_file, bytes, {.overwrite = true}, error);
}

std::filesystem::path recentFilterFile()
{
    return userFilterFile().parent_path() / "recent_filters.txt";
}
