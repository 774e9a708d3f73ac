#include <command/qselect_command.h>

#include <command/dialog_source.h>
#include <command/selection_run.h>

void DDQSelectCommand::execute(long* ss)
{
    DialogSource source;
    int matches = 0;
    runSelection(ss, source, matches);
}
