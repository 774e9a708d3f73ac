/// How far long work has come, on a line of the terminal that comes and goes.
#pragma once

#include <chrono>
#include <string>

/// Says nothing where standard error is no terminal, nor while the work is short.
class ProgressLine
{
  public:
    ProgressLine();
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    void show(const std::string& text);

    /// For processes whose parent tells the progress.
    static void silence();

  private:
    using Clock = std::chrono::steady_clock;

    Clock::time_point m_next;
    bool m_isShown = false;
};
