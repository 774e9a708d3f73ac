/// How a program lets the user work in its drawing while a dialog waits.
#pragma once

#include <vector>

#include <database/object_id.h>

/// The program's side.
class KW_EXPORT KdUiEditorPrompt
{
  public:
    virtual ~KdUiEditorPrompt();
    /// The dialog has been hidden and the drawing has the user's attention.
    virtual void beginEditorCommand() {}
    /// Lets the user pick entities of the working drawing, and waits.
    /// @param picked  empty; receives what was picked, in that order
    /// @return        `RTNORM`, or `RTCAN` if the user gave up
    virtual int pickObjects(std::vector<KdDbObjectId>& picked) = 0;
    /// The dialog is about to come back.
    virtual void completeEditorCommand() {}
};

/// Installs the prompt for dialogs and for `kdedSSGet`, and returns the one so far. Not owned; null
/// takes it away. Without one nothing can be picked.
KW_EXPORT KdUiEditorPrompt* kduiSetEditorPrompt(KdUiEditorPrompt* prompt);
/// The prompt in use, or null.
KW_EXPORT KdUiEditorPrompt* kduiEditorPrompt();
