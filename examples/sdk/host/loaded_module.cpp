#include "loaded_module.h"

#include <stdexcept>
#include <string>

#include <dlfcn.h>

namespace {

void* open(const char* file)
{
    void* library = dlopen(file, RTLD_NOW | RTLD_LOCAL);
    if (!library)
        throw std::runtime_error(dlerror());
    return library;
}

template <class Function>
Function* find(void* library, const char* name)
{
    auto* function = reinterpret_cast<Function*>(dlsym(library, name));
    if (!function)
        throw std::runtime_error(std::string("there is no function ") + name);
    return function;
}

} // namespace

LoadedModule::LoadedModule(const char* moduleFile, const char* providerFile)
{
    using namespace quick_select;
    m_module = open(moduleFile);
    run = find<QSelectRunFunction>(m_module, "QSelectRun");
    listTypes = find<QSelectListTypesFunction>(m_module, "QSelectListTypes");
    listProperties = find<QSelectListPropertiesFunction>(m_module, "QSelectListProperties");
    find<DllMainFunction>(m_module, "DllMain")(m_module, kAttach, nullptr);
    find<QSelectInitFunction>(m_module, "QSelectInit")();
    try {
        if (providerFile)
            attachProvider(providerFile);
    } catch (...) {
        unloadModule();
        throw;
    }
}

void LoadedModule::attachProvider(const char* file)
{
    m_provider = open(file);
    if (!find<bool()>(m_provider, "attachProvider")())
        throw std::runtime_error("the provider can't be attached");
}

LoadedModule::~LoadedModule()
{
    if (m_provider) {
        find<void()>(m_provider, "detachProvider")();
        dlclose(m_provider);
    }
    unloadModule();
}

void LoadedModule::unloadModule()
{
    using namespace quick_select;
    find<QSelectUnInitFunction>(m_module, "QSelectUnInit")();
    find<DllMainFunction>(m_module, "DllMain")(m_module, kDetach, nullptr);
    dlclose(m_module);
}
