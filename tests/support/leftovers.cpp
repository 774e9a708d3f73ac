#include "leftovers.h"

#include <vector>

#include <gtest/gtest.h>

namespace {

struct Watched
{
    const char* what;
    LeftoverCount::Count count;
    long long before = 0;
};

class Watch : public testing::EmptyTestEventListener
{
  public:
    void add(const char* what, LeftoverCount::Count count) { m_watched.push_back({what, count}); }

    void OnTestStart(const testing::TestInfo&) override
    {
        for (Watched& watched : m_watched)
            watched.before = watched.count();
    }
    void OnTestEnd(const testing::TestInfo& test) override
    {
        for (const Watched& watched : m_watched)
            EXPECT_EQ(watched.count(), watched.before)
                << watched.what << " are left behind by " << test.name();
    }

  private:
    std::vector<Watched> m_watched;
};

Watch& watch()
{
    // The list of listeners owns it.
    static auto* const instance = [] {
        auto* made = new Watch;
        testing::UnitTest::GetInstance()->listeners().Append(made);
        return made;
    }();
    return *instance;
}

} // namespace

LeftoverCount::LeftoverCount(const char* what, Count count)
{
    watch().add(what, count);
}
