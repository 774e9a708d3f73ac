#include "progress_line.h"

#include <iostream>

#include <unistd.h>

namespace {

using namespace std::chrono_literals;

constexpr auto kShortWork = 400ms;
constexpr auto kBetween = 100ms;
constexpr const char* kEraseLine = "\r\x1b[K";

bool isSilenced = false;

} // namespace

ProgressLine::ProgressLine() : m_next(Clock::now() + kShortWork) {}

ProgressLine::~ProgressLine()
{
    if (m_isShown)
        std::cerr << kEraseLine << std::flush;
}

void ProgressLine::show(const std::string& text)
{
    const auto now = Clock::now();
    if (isSilenced || now < m_next || isatty(STDERR_FILENO) == 0)
        return;
    std::cerr << kEraseLine << text << std::flush;
    m_isShown = true;
    m_next = now + kBetween;
}

void ProgressLine::silence()
{
    isSilenced = true;
}
