/// Tells whether work grows as it should, on a machine that others use as well.
#pragma once

#include <ctime>

/// The processor time that the process has taken since this was made.
class ProcessorWatch
{
  public:
    double seconds() const { return static_cast<double>(std::clock() - m_start) / CLOCKS_PER_SEC; }

  private:
    std::clock_t m_start = std::clock();
};
