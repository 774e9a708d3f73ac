#include "support.h"

namespace {

/// All tests run with English texts and find the libraries made for them first.
class TestTexts : public testing::Environment
{
  public:
    void SetUp() override
    {
        setResourceLanguage("values_test");
        setResourceFolder(KW_VALUES_TEST_RESOURCES);
    }
};

[[maybe_unused]] const auto* const kTexts = testing::AddGlobalTestEnvironment(new TestTexts);

} // namespace

DrawingTest::DrawingTest()
{
    kddbHostApplicationServices()->setWorkingDatabase(&m_drawing);
}

DrawingTest::~DrawingTest()
{
    EXPECT_EQ(m_drawing.openCount(), 0) << "objects were left open";
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
}

void DrawingTest::setInteger(const wchar_t* variable, int value)
{
    const int index = KdDbHeaderVariables::indexOf(variable);
    ASSERT_GE(index, 0);
    ASSERT_TRUE(m_drawing.header().setValue(index, std::int32_t{value}));
}
