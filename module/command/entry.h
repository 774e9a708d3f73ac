/// The functions that the module exports to its host.
#pragma once

#include <plugin/quick_select.h>
#include <runtime/export.h>

extern "C" {

/// Attach (reason 1) notes the handles, once; detach (reason 0) forgets that it is attached, and
/// leaves the handles. Returns 1 always.
KW_EXPORT int DllMain(void* module, unsigned reason, void* reserved);

/// Registers the runtime classes and attaches the providers to the host's classes.
KW_EXPORT void QSelectInit();
/// Undoes `QSelectInit`.
KW_EXPORT void QSelectUnInit();

/// One run of the command with no given selection.
KW_EXPORT void selectCmd();
/// One run with a selection set as the given selection; it is only read. Null counts as none.
KW_EXPORT void selectCmdEx(long* ss);
/// The same as `selectCmd`.
KW_EXPORT void QSelectCmd();
/// The same as `selectCmdEx`.
KW_EXPORT void QSelectDialog(long* ss);

// What follows serves programs that work without the dialog; see plugin/quick_select.h.

KW_EXPORT void QSelectRun(const quick_select::Request& request, long* ss,
                          quick_select::Result& result);
KW_EXPORT void QSelectListTypes(long* ss, quick_select::TypeVisitor visitor, void* context);
KW_EXPORT void QSelectListEntities(long* ss, quick_select::EntityVisitor visitor, void* context);
KW_EXPORT void QSelectListProperties(KdDbObjectId entity, const wchar_t* onlyKey, bool withChoices,
                                     quick_select::PropertyVisitor visitor, void* context);
KW_EXPORT void QSelectListOperators(int restype, quick_select::OperatorVisitor visitor,
                                    void* context);
KW_EXPORT double QSelectTolerance();
KW_EXPORT void QSelectLastRequest(quick_select::RequestVisitor visitor, void* context);
KW_EXPORT void QSelectHoldDrawing(bool hold);
KW_EXPORT void QSelectWatchDialog(quick_select::DialogWatcher watcher, void* context);
KW_EXPORT void QSelectPreview(int milliseconds, quick_select::PreviewVisitor visitor,
                              void* context);
}
