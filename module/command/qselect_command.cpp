#include <command/qselect_command.h>

#include <editor/command_line.h>

#include <command/selection_run.h>

namespace {

/// Stands where the dialog will ask.
class NoDialog : public FilterSource
{
  public:
    bool ask(const std::vector<KdDbEntity*>&, const std::vector<KdDbEntity*>&,
             FilterChoice&) override
    {
        kdutPrintf(L"\nThe quick-select dialog is not part of this version.");
        return false;
    }
};

} // namespace

void DDQSelectCommand::execute(long* ss)
{
    NoDialog source;
    int matches = 0;
    runSelection(ss, source, matches);
}
