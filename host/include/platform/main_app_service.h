/// What the running program does for commands.
#pragma once

#include <runtime/export.h>

/// The program's side; a program with windows installs its own.
class KW_EXPORT MainAppService
{
  public:
    virtual ~MainAppService();
    /// Gives the input focus back to the drawing, after a dialog or a message had it. Here:
    /// nothing, for programs without windows.
    virtual void focusDrawing();
};

/// The service in use; never null.
KW_EXPORT MainAppService* kwdrawMainAppService();

/// Installs another service and returns the one used so far. Not owned; it must stay until another
/// is installed. Null brings back the one that does nothing.
KW_EXPORT MainAppService* setMainAppService(MainAppService* service);
