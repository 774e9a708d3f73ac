#include <platform/main_app_service.h>

namespace {

MainAppService noWindows;
MainAppService* currentService = &noWindows;

} // namespace

MainAppService::~MainAppService() = default;

void MainAppService::focusDrawing() {}

MainAppService* kwdrawMainAppService()
{
    return currentService;
}

MainAppService* setMainAppService(MainAppService* service)
{
    MainAppService* const previous = currentService;
    currentService = service ? service : &noWindows;
    return previous;
}
