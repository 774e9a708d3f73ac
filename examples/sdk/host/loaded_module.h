/// The quick-select module, and a provider beside it, as long as they are in use.
#pragma once

#include <plugin/quick_select.h>

class LoadedModule
{
  public:
    /// Loads and initialises the module, then loads and attaches the provider, if one is named.
    /// Throws `std::runtime_error` with a sentence for the user.
    LoadedModule(const char* moduleFile, const char* providerFile);
    /// Undoes all of it in the opposite order.
    ~LoadedModule();
    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;

    quick_select::QSelectRunFunction* run = nullptr;
    quick_select::QSelectListTypesFunction* listTypes = nullptr;
    quick_select::QSelectListPropertiesFunction* listProperties = nullptr;

  private:
    void attachProvider(const char* file);
    void unloadModule();

    void* m_module = nullptr;
    void* m_provider = nullptr;
};
