#include <platform/main_app_service.h>

#include <gmock/gmock.h>

namespace {

class ServiceMock : public MainAppService
{
  public:
    MOCK_METHOD(void, focusDrawing, (), (override));
};

TEST(MainAppService, DoesNothingAtFirst)
{
    ASSERT_NE(kwdrawMainAppService(), nullptr);
    kwdrawMainAppService()->focusDrawing();
}

TEST(MainAppService, IsTheOneThatTheProgramInstalls)
{
    ServiceMock service;
    MainAppService* const first = setMainAppService(&service);
    EXPECT_EQ(kwdrawMainAppService(), &service);
    EXPECT_CALL(service, focusDrawing());
    kwdrawMainAppService()->focusDrawing();

    EXPECT_EQ(setMainAppService(nullptr), &service);
    EXPECT_EQ(kwdrawMainAppService(), first);
}

} // namespace
