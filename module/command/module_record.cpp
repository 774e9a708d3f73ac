#include <command/module_record.h>

#include <platform/resources.h>

#include <command/entry.h>

CKdExtensionModule theArxDLL{};

CKdExtensionModule* CKdModuleResourceOverride::m_extensionModule = &theArxDLL;

int DllMain(void* module, unsigned reason, void*)
{
    using namespace quick_select;
    if (reason == kAttach && theArxDLL.attached == 0)
        theArxDLL = {static_cast<int>(reason), AfxGetResourceHandle(), module};
    else if (reason == kDetach)
        theArxDLL.attached = 0;
    return 1;
}
