/// The application that fonts and windows need.
#pragma once

#include <memory>

#include <gtest/gtest.h>

/// Stands around all tests of a program: `testing::AddGlobalTestEnvironment` takes one.
template <class Application>
class ApplicationAround : public testing::Environment
{
  public:
    using Step = void (*)();

    /// @param started  done as soon as the application is there
    explicit ApplicationAround(Step started = [] {}) : m_started(started) {}

    void SetUp() override
    {
        m_application = std::make_unique<Application>(m_count, m_arguments);
        m_started();
    }
    void TearDown() override { m_application.reset(); }

  private:
    Step m_started;
    int m_count = 1;
    char m_name[5] = "test";
    char* m_arguments[2] = {m_name, nullptr};
    std::unique_ptr<Application> m_application;
};
