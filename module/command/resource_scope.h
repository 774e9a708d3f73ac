/// The module's own resources for the length of a run.
#pragma once

#include <platform/resources.h>

/// Makes the module's resource library current and undoes that at the end of the scope, also when
/// an exception passes. If the library can't be made current, the run goes on with the current one.
class ResourceScope
{
  public:
    ResourceScope() : m_switched(SetCurrentResourceName(L"KwQselectUtilRes.dll")) {}
    ~ResourceScope()
    {
        if (m_switched)
            RestorePreviousResource();
    }
    ResourceScope(const ResourceScope&) = delete;
    ResourceScope& operator=(const ResourceScope&) = delete;

  private:
    bool m_switched;
};
