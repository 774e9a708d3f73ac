#include <common/module.h>

#include <cstdlib>

#include <dlfcn.h>

bool Module::load(const std::filesystem::path& file)
{
    m_handle = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!m_handle) {
        m_error = std::string("the quick-select module can't be loaded: ") + dlerror();
        return false;
    }
    if (!findAll())
        return false;
    m_dllMain(m_handle, quick_select::kAttach, nullptr);
    m_init();
    m_initialised = true;
    return true;
}

template <class Function>
bool Module::find(const char* name, Function*& function)
{
    function = reinterpret_cast<Function*>(dlsym(m_handle, name));
    if (!function)
        m_error = std::string("the quick-select module lacks the function ") + name;
    return function != nullptr;
}

bool Module::findAll()
{
    return find("DllMain", m_dllMain) && find("QSelectInit", m_init) &&
           find("QSelectUnInit", m_unInit) && find("selectCmd", selectCmd) &&
           find("selectCmdEx", selectCmdEx) && find("QSelectRun", run) &&
           find("QSelectListTypes", listTypes) && find("QSelectListEntities", listEntities) &&
           find("QSelectListProperties", listProperties) &&
           find("QSelectListOperators", listOperators) && find("QSelectTolerance", tolerance) &&
           find("QSelectLastRequest", lastRequest) && find("QSelectHoldDrawing", holdDrawing) &&
           find("QSelectWatchDialog", watchDialog) && find("QSelectPreview", preview);
}

void Module::unload()
{
    if (m_initialised) {
        m_unInit();
        m_dllMain(m_handle, quick_select::kDetach, nullptr);
    }
    if (m_handle)
        dlclose(m_handle);
}

std::filesystem::path modulePath()
{
    if (const char* named = std::getenv("KW_MODULE"))
        return named;
    const auto program = std::filesystem::read_symlink("/proc/self/exe");
    return program.parent_path().parent_path() / "lib/kwqselect/KwQselectUtil.so";
}
