#include <command/qselect_command.h>

#include <command/dialog_source.h>
#include <command/last_request.h>
#include <command/selection_run.h>

void DDQSelectCommand::execute(long* ss)
{
    DialogSource source;
    int matches = 0;
    if (runSelection(ss, source, matches) == RunEnd::Done)
        rememberRequest(source.request());
}
