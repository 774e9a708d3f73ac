/// Ctrl+C while a drawing is read.
#pragma once

#include <csignal>

/// While it lives, the first Ctrl+C is only remembered, so that reading can be cancelled tidily. A
/// second one ends the program at once. A program that was started to ignore Ctrl+C still does.
class InterruptWatch
{
  public:
    InterruptWatch();
    ~InterruptWatch();
    InterruptWatch(const InterruptWatch&) = delete;
    InterruptWatch& operator=(const InterruptWatch&) = delete;

    static bool wasInterrupted();

  private:
    struct sigaction m_before = {};
};
