/// What the program can be told to do: by menu, toolbar, keys and the command line.
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <span>
#include <vector>

#include <kwdraw/window/icons.h>

class QAction;

enum class Command
{
    Open,
    Reload,
    ExportHandles,
    ExportCsv,
    ExportJson,
    ExportDrawing,
    Quit,
    Undo,
    Redo,
    SelectAll,
    Invert,
    Deselect,
    CopyHandles,
    CopyTable,
    CopyJson,
    CopyCommand,
    QuickSelect,
    RunLast,
    SelectSimilar,
    ZoomExtents,
    ZoomWindow,
    ZoomSelection,
    ZoomPrevious,
    ZoomIn,
    ZoomOut,
    NextSelected,
    PreviousSelected,
    OpenBlock,
    CloseBlock,
    Lineweights,
    SystemTheme,
    LightTheme,
    DarkTheme,
    ContrastTheme,
    ListValues,
    PreviewMatches,
    Layers,
    Findings,
    Help,
    QuickSelectHelp,
    Keys,
    About,
};

/// What has to be the case for a command; a sum of these.
enum Need : unsigned
{
    kNothing = 0,
    kDrawing = 1,        ///< one is open
    kSelected = 2,       ///< something is selected
    kAttention = 4,      ///< no command waits for the user, and nothing is being built
    kUndoable = 8,       ///< there is a selection to go back to
    kRedoable = 16,      ///< and one to go forth to
    kBlockOpen = 32,     ///< a block definition is open
    kFindings = 64,      ///< the reader found something
    kWriter = 128,       ///< no selection is being written
    kRun = 256,          ///< the selection comes from runs that can be told as a command
    kRecentFilter = 512, ///< a filter was run at some time
};

enum class Menu
{
    File,
    Edit,
    View,
    Help,
    Export, ///< within the File menu
    Copy,   ///< within the Edit menu
    Theme,  ///< within the View menu
};

/// With its mnemonic.
QString titleOf(Menu menu);

struct CommandRow
{
    Command command;
    Menu menu;
    const char* text; ///< with its mnemonic
    const char* keys; ///< in the notation of `QKeySequence`, several with blanks between
    Icon icon;
    unsigned needs;
    const char* typed; ///< on the command line; a bar between several names
    bool checkable;
    bool startsGroup; ///< a line stands before it in the menu
};

/// Owns the actions. Each can be carried out once something was connected to it.
class Commands : public QObject
{
    Q_OBJECT
  public:
    explicit Commands(QObject* parent);

    static std::span<const CommandRow> rows();
    QAction* action(Command command) const;
    void on(Command command, std::function<void()> act);
    /// Of a command that can be on and off; told at each change.
    void onToggled(Command command, std::function<void(bool)> act);
    /// Enables each as far as all that it needs is in `present`.
    void update(unsigned present);

    /// The command of that name, without regard to case and to how many blanks there are.
    std::optional<Command> byTypedName(const QString& line) const;
    /// For completion, in alphabetical order.
    QStringList typedNames() const;

  private:
    std::vector<QAction*> m_actions; ///< in the order of the rows
};

/// A table of all keys and command names, in Markdown.
QString keyTable();
