#include <command/entry.h>

#include <optional>
#include <string>

#include "support.h"

using namespace command_test;
using quick_select::Outcome;
using quick_select::PastRequest;

namespace {

class LastRequest : public CommandTest
{
  protected:
    static quick_select::Request onLayer(const wchar_t* name)
    {
        quick_select::Request request{};
        request.propertyKey = kLayerKey;
        request.kind = ResBuf::kLayerName;
        request.operatorText = L"=";
        request.valueText = name;
        return request;
    }
    static Outcome run(const quick_select::Request& request)
    {
        quick_select::Result result{};
        QSelectRun(request, nullptr, result);
        return result.outcome;
    }
    static std::optional<std::wstring> lastValue()
    {
        std::optional<std::wstring> value;
        QSelectLastRequest(
            [](void* context, const PastRequest* past) {
                if (past)
                    *static_cast<std::optional<std::wstring>*>(context) = past->request.valueText;
            },
            &value);
        return value;
    }
};

TEST_F(LastRequest, IsNoneBeforeTheFirstRun)
{
    EXPECT_EQ(lastValue(), std::nullopt);
}

TEST_F(LastRequest, IsThatOfARunWithoutADialog)
{
    addOn(L"PIPES");
    auto request = onLayer(L"PIPES");
    const double tolerance = 0.25;
    request.typeName = L"Line";
    request.className = L"AcDbLine";
    request.exclude = true;
    request.append = true;
    request.fromSelection = true;
    request.axis = 0;
    request.tolerance = &tolerance;
    ASSERT_EQ(run(request), Outcome::Done);
    bool isVisited = false;
    QSelectLastRequest(
        [](void* context, const PastRequest* past) {
            ASSERT_TRUE(past);
            const quick_select::Request& told = past->request;
            EXPECT_STREQ(told.typeName, L"Line");
            EXPECT_STREQ(told.className, L"AcDbLine");
            EXPECT_STREQ(told.propertyKey, kLayerKey);
            EXPECT_STREQ(told.operatorText, L"=");
            EXPECT_STREQ(told.valueText, L"PIPES");
            EXPECT_EQ(told.kind, ResBuf::kLayerName);
            EXPECT_EQ(told.axis, 0);
            EXPECT_TRUE(told.exclude && told.append && told.fromSelection);
            ASSERT_TRUE(told.tolerance);
            EXPECT_EQ(*told.tolerance, 0.25);
            EXPECT_FALSE(past->overPicked);
            *static_cast<bool*>(context) = true;
        },
        &isVisited);
    EXPECT_TRUE(isVisited);
}

TEST_F(LastRequest, HasEmptyTextsForNullOnes)
{
    add(model());
    ASSERT_EQ(run({}), Outcome::Done);
    EXPECT_EQ(lastValue(), L"");
}

TEST_F(LastRequest, StaysWhenARunIsRefused)
{
    addOn(L"PIPES");
    ASSERT_EQ(run(onLayer(L"PIPES")), Outcome::Done);
    auto wrong = onLayer(L"WALLS");
    wrong.operatorText = L">";
    EXPECT_EQ(run(wrong), Outcome::BadOperator);
    EXPECT_EQ(lastValue(), L"PIPES");
}

TEST_F(LastRequest, IsForgottenWithTheModule)
{
    addOn(L"PIPES");
    ASSERT_EQ(run(onLayer(L"PIPES")), Outcome::Done);
    QSelectUnInit();
    EXPECT_EQ(lastValue(), std::nullopt);
    QSelectInit();
}

} // namespace
