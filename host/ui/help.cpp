#include <ui/help.h>

#include <platform/message_box.h>

#include <utility>

namespace {

KdUiHelpViewer& viewer()
{
    static KdUiHelpViewer current;
    return current;
}

} // namespace

void KWCMDHELP::KdadHelp(const wchar_t* topic)
{
    if (viewer())
        viewer()(topic ? topic : L"");
    else
        AfxMessageBox(L"There is no help in this program.", MB_ICONINFORMATION, 0);
}

KdUiHelpViewer kduiSetHelpViewer(KdUiHelpViewer newViewer)
{
    return std::exchange(viewer(), std::move(newViewer));
}
