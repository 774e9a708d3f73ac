/// The quick-select module, loaded as any host loads it.
#pragma once

#include <filesystem>
#include <string>

#include <plugin/quick_select.h>

/// Holds the module loaded and initialised; the destructor undoes both.
class Module
{
  public:
    Module() = default;
    ~Module() { unload(); }
    Module(const Module&) = delete;
    Module& operator=(const Module&) = delete;

    /// Loads and initialises. False: `error()` is a sentence for the user.
    bool load(const std::filesystem::path& file);
    const std::string& error() const { return m_error; }

    quick_select::SelectCmdFunction* selectCmd = nullptr;
    quick_select::SelectCmdExFunction* selectCmdEx = nullptr;
    quick_select::QSelectRunFunction* run = nullptr;
    quick_select::QSelectListTypesFunction* listTypes = nullptr;
    quick_select::QSelectListEntitiesFunction* listEntities = nullptr;
    quick_select::QSelectListPropertiesFunction* listProperties = nullptr;
    quick_select::QSelectListOperatorsFunction* listOperators = nullptr;
    quick_select::QSelectToleranceFunction* tolerance = nullptr;
    quick_select::QSelectLastRequestFunction* lastRequest = nullptr;
    quick_select::QSelectHoldDrawingFunction* holdDrawing = nullptr;
    quick_select::QSelectWatchDialogFunction* watchDialog = nullptr;
    quick_select::QSelectPreviewFunction* preview = nullptr;

  private:
    template <class Function>
    bool find(const char* name, Function*& function);
    bool findAll();
    void unload();

    void* m_handle = nullptr;
    bool m_initialised = false;
    quick_select::DllMainFunction* m_dllMain = nullptr;
    quick_select::QSelectInitFunction* m_init = nullptr;
    quick_select::QSelectUnInitFunction* m_unInit = nullptr;
    std::string m_error;
};

/// Where the module lies: named by the environment variable KW_MODULE, otherwise in the folder
/// `lib/kwqselect` beside the folder of the running program.
std::filesystem::path modulePath();
