// Fonts need the program around them.
#include <memory>

#include <QGuiApplication>

#include <gtest/gtest.h>

namespace {

class Application : public testing::Environment
{
  public:
    void SetUp() override
    {
        m_application = std::make_unique<QGuiApplication>(m_count, m_arguments);
    }
    void TearDown() override { m_application.reset(); }

  private:
    int m_count = 1;
    char m_name[6] = "scene";
    char* m_arguments[2] = {m_name, nullptr};
    std::unique_ptr<QGuiApplication> m_application;
};

[[maybe_unused]] const auto* const kApplication =
    testing::AddGlobalTestEnvironment(new Application);

} // namespace
