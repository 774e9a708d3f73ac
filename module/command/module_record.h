/// What the module knows of itself in the host's process.
#pragma once

#include <runtime/export.h>

/// Filled when the host attaches the module; zero before.
struct KW_EXPORT CKdExtensionModule
{
    int attached;         ///< the reason of the first attach, or 0
    void* resourceHandle; ///< the resource library that was current at that moment
    void* moduleHandle;   ///< the handle that the host gave
};

extern KW_EXPORT CKdExtensionModule theArxDLL;

class KW_EXPORT CKdModuleResourceOverride
{
  public:
    static CKdExtensionModule* m_extensionModule;
};
