#include <command/entry.h>

#include <command/dialog_preview.h>
#include <command/gathering.h>
#include <command/last_request.h>
#include <command/property_listing.h>
#include <command/qselect_command.h>
#include <command/registration.h>
#include <command/request.h>
#include <command/resource_scope.h>
#include <plugin/entity_pe.h>
#include <values/compare.h>

void QSelectInit()
{
    KdDbEntityPE::rxInit();
    KdDbEntity_Extension::rxInit();
    addXs();
}

void QSelectUnInit()
{
    rememberRequest(std::nullopt);
    delXs();
    deleteKdRxClass(KdDbEntity_Extension::desc());
    deleteKdRxClass(KdDbEntityPE::desc());
}

void selectCmd()
{
    const ResourceScope resources;
    DDQSelectCommand command;
    command.execute(nullptr);
}

void selectCmdEx(long* ss)
{
    const ResourceScope resources;
    DDQSelectCommand command;
    command.execute(ss);
}

void QSelectCmd()
{
    selectCmd();
}

void QSelectDialog(long* ss)
{
    selectCmdEx(ss);
}

void QSelectRun(const quick_select::Request& request, long* ss, quick_select::Result& result)
{
    const ResourceScope resources;
    result = runRequest(request, ss);
}

void QSelectListTypes(long* ss, quick_select::TypeVisitor visitor, void* context)
{
    const ResourceScope resources;
    listTypes(ss, visitor, context);
}

void QSelectListEntities(long* ss, quick_select::EntityVisitor visitor, void* context)
{
    const ResourceScope resources;
    listEntities(ss, visitor, context);
}

void QSelectListProperties(KdDbObjectId entity, const wchar_t* onlyKey, bool withChoices,
                           quick_select::PropertyVisitor visitor, void* context)
{
    const ResourceScope resources;
    listProperties(entity, onlyKey, withChoices, visitor, context);
}

void QSelectListOperators(int restype, quick_select::OperatorVisitor visitor, void* context)
{
    listOperators(restype, visitor, context);
}

void QSelectHoldDrawing(bool hold)
{
    holdDrawing(hold);
}

double QSelectTolerance()
{
    constexpr double kWithoutPrecision = 1.0e-8;
    return CompareDynamicEpsilon(kWithoutPrecision);
}

void QSelectLastRequest(quick_select::RequestVisitor visitor, void* context)
{
    visitLastRequest(visitor, context);
}

void QSelectWatchDialog(quick_select::DialogWatcher watcher, void* context)
{
    watchDialog(watcher, context);
}

void QSelectPreview(int milliseconds, quick_select::PreviewVisitor visitor, void* context)
{
    const ResourceScope resources;
    previewDialog(milliseconds, visitor, context);
}
