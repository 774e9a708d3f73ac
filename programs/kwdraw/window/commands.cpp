#include <kwdraw/window/commands.h>

#include <QAction>
#include <QCoreApplication>
#include <QKeySequence>

#include <algorithm>

namespace {

constexpr char kContext[] = "Commands";
constexpr unsigned kIdleDrawing = kDrawing | kAttention;
constexpr unsigned kWritable = kSelected | kAttention | kWriter;

// clang-format off
constexpr CommandRow kRows[] = {
    // command                 menu        text                                        keys                    icon                needs                    typed                         checkable group
    {Command::Open,            Menu::File, QT_TRANSLATE_NOOP("Commands", "&Open..."),            "Ctrl+O",               Icon::Open,          kAttention,              "OPEN",                       false, false},
    {Command::Reload,          Menu::File, QT_TRANSLATE_NOOP("Commands", "&Reload"),             "F5",                   Icon::Reload,        kIdleDrawing,            "RELOAD",                     false, true},
    {Command::OpenBlock,       Menu::File, QT_TRANSLATE_NOOP("Commands", "Open &Block..."),      "Ctrl+B",               Icon::Block,         kIdleDrawing,            "OPENBLOCK",                  false, true},
    {Command::CloseBlock,      Menu::File, QT_TRANSLATE_NOOP("Commands", "&Close Block"),        "Ctrl+Shift+B",         Icon::None,          kBlockOpen | kAttention, "CLOSEBLOCK",                 false, false},
    {Command::ExportHandles,   Menu::Export, QT_TRANSLATE_NOOP("Commands", "&Handles..."),       "",                     Icon::None,          kWritable,               "EXPORT HANDLES",             false, true},
    {Command::ExportCsv,       Menu::Export, QT_TRANSLATE_NOOP("Commands", "&CSV..."),           "",                     Icon::None,          kWritable,               "EXPORT CSV",                 false, false},
    {Command::ExportJson,      Menu::Export, QT_TRANSLATE_NOOP("Commands", "&JSON..."),          "",                     Icon::None,          kWritable,               "EXPORT JSON",                false, false},
    {Command::ExportDrawing,   Menu::Export, QT_TRANSLATE_NOOP("Commands", "&Drawing..."),       "Ctrl+Shift+S",         Icon::None,          kWritable,               "EXPORT DXF",                 false, false},
    {Command::Findings,        Menu::File, QT_TRANSLATE_NOOP("Commands", "&Faults in the File"), "",                     Icon::None,          kDrawing | kFindings,    "FAULTS",                     false, true},
    {Command::Quit,            Menu::File, QT_TRANSLATE_NOOP("Commands", "&Quit"),               "Ctrl+Q",               Icon::None,          kNothing,                "QUIT|EXIT",                  false, true},
    {Command::Undo,            Menu::Edit, QT_TRANSLATE_NOOP("Commands", "&Undo Selection"),     "Ctrl+Z",               Icon::Undo,          kUndoable | kAttention,  "UNDO|U",                     false, false},
    {Command::Redo,            Menu::Edit, QT_TRANSLATE_NOOP("Commands", "&Redo Selection"),     "Ctrl+Shift+Z Ctrl+Y",  Icon::Redo,          kRedoable | kAttention,  "REDO",                       false, false},
    {Command::SelectAll,       Menu::Edit, QT_TRANSLATE_NOOP("Commands", "Select &All"),         "Ctrl+A",               Icon::None,          kDrawing,                "SELECTALL|ALL",              false, true},
    {Command::Invert,          Menu::Edit, QT_TRANSLATE_NOOP("Commands", "&Invert Selection"),   "Ctrl+I",               Icon::None,          kIdleDrawing,            "INVERT",                     false, false},
    {Command::Deselect,        Menu::Edit, QT_TRANSLATE_NOOP("Commands", "&Deselect"),           "Ctrl+Shift+A",         Icon::None,          kSelected | kAttention,  "DESELECT|NONE",              false, false},
    {Command::CopyHandles,     Menu::Copy, QT_TRANSLATE_NOOP("Commands", "&Handles"),            "Ctrl+C",               Icon::None,          kWritable,               "COPY|COPY HANDLES",          false, true},
    {Command::CopyTable,       Menu::Copy, QT_TRANSLATE_NOOP("Commands", "&Table"),              "Ctrl+Shift+C",         Icon::None,          kWritable,               "COPY TABLE",                 false, false},
    {Command::CopyJson,        Menu::Copy, QT_TRANSLATE_NOOP("Commands", "&JSON"),               "",                     Icon::None,          kWritable,               "COPY JSON",                  false, false},
    {Command::CopyCommand,     Menu::Copy, QT_TRANSLATE_NOOP("Commands", "As &Command"),         "",                     Icon::None,          kRun | kAttention,       "COPY COMMAND",               false, true},
    {Command::QuickSelect,     Menu::Edit, QT_TRANSLATE_NOOP("Commands", "&Quick Select..."),    "Ctrl+F",               Icon::QuickSelect,   kIdleDrawing,            "QSELECT|QUICKSELECT",        false, true},
    {Command::RunLast,         Menu::Edit, QT_TRANSLATE_NOOP("Commands", "Run &Last Filter"),     "Ctrl+R",               Icon::None,          kIdleDrawing | kRecentFilter, "AGAIN|LAST FILTER",     false, false},
    {Command::SelectSimilar,   Menu::Edit, QT_TRANSLATE_NOOP("Commands", "Select &Similar"),     "Ctrl+Shift+F",         Icon::SelectSimilar, kSelected | kAttention,  "SELECTSIMILAR",              false, false},
    {Command::ZoomExtents,     Menu::View, QT_TRANSLATE_NOOP("Commands", "Zoom to &Extents"),    "Ctrl+0",               Icon::ZoomExtents,   kDrawing,                "ZOOM E|ZE|ZOOM EXTENTS",     false, false},
    {Command::ZoomWindow,      Menu::View, QT_TRANSLATE_NOOP("Commands", "Zoom to &Window"),     "Ctrl+W",               Icon::ZoomWindow,    kDrawing,                "ZOOM W|ZW|ZOOM WINDOW",      false, false},
    {Command::ZoomSelection,   Menu::View, QT_TRANSLATE_NOOP("Commands", "Zoom to &Selection"),  "Ctrl+E",               Icon::ZoomSelection, kDrawing | kSelected,    "ZOOM O|ZO|ZOOM SELECTION",   false, false},
    {Command::ZoomPrevious,    Menu::View, QT_TRANSLATE_NOOP("Commands", "Zoom &Back"),          "Alt+Left",             Icon::ZoomPrevious,  kDrawing,                "ZOOM P|ZP|ZOOM PREVIOUS",    false, false},
    {Command::ZoomIn,          Menu::View, QT_TRANSLATE_NOOP("Commands", "Zoom &In"),            "Ctrl++ Ctrl+=",        Icon::None,          kDrawing,                "ZOOM IN",                    false, false},
    {Command::ZoomOut,         Menu::View, QT_TRANSLATE_NOOP("Commands", "Zoom &Out"),           "Ctrl+-",               Icon::None,          kDrawing,                "ZOOM OUT",                   false, false},
    {Command::NextSelected,    Menu::View, QT_TRANSLATE_NOOP("Commands", "&Next Selected"),      "F3",                   Icon::Next,          kDrawing | kSelected,    "NEXT",                       false, true},
    {Command::PreviousSelected,Menu::View, QT_TRANSLATE_NOOP("Commands", "&Previous Selected"),  "Shift+F3",             Icon::Previous,      kDrawing | kSelected,    "PREVIOUS",                   false, false},
    {Command::Layers,          Menu::View, QT_TRANSLATE_NOOP("Commands", "Find a &Layer"),       "Ctrl+L",               Icon::None,          kNothing,                "LAYER|LA",                   false, true},
    {Command::Lineweights,     Menu::View, QT_TRANSLATE_NOOP("Commands", "Show Linewei&ghts"),   "",                     Icon::Lineweights,   kNothing,                "LINEWEIGHTS",                true,  true},
    {Command::SystemTheme,     Menu::Theme, QT_TRANSLATE_NOOP("Commands", "&System"),            "",                     Icon::None,          kNothing,                "THEME SYSTEM",               true,  false},
    {Command::LightTheme,      Menu::Theme, QT_TRANSLATE_NOOP("Commands", "&Light"),             "",                     Icon::None,          kNothing,                "THEME LIGHT|LIGHT",          true,  false},
    {Command::DarkTheme,       Menu::Theme, QT_TRANSLATE_NOOP("Commands", "&Dark"),              "",                     Icon::None,          kNothing,                "THEME DARK|DARK",            true,  false},
    {Command::ContrastTheme,   Menu::Theme, QT_TRANSLATE_NOOP("Commands", "&High Contrast"),     "",                     Icon::None,          kNothing,                "THEME CONTRAST|CONTRAST",    true,  false},
    {Command::ListValues,      Menu::View, QT_TRANSLATE_NOOP("Commands", "List the &Values of Texts"), "",               Icon::None,          kNothing,                "LISTVALUES",                 true,  false},
    {Command::PreviewMatches,  Menu::View, QT_TRANSLATE_NOOP("Commands", "Preview &Matches"),     "",                     Icon::None,          kNothing,                "PREVIEW",                    true,  false},
    {Command::Help,            Menu::Help, QT_TRANSLATE_NOOP("Commands", "&Help"),               "F1",                   Icon::Help,          kNothing,                "HELP|?",                     false, false},
    {Command::QuickSelectHelp, Menu::Help, QT_TRANSLATE_NOOP("Commands", "&Quick Select"),       "",                     Icon::None,          kNothing,                "HELP QSELECT",               false, false},
    {Command::Keys,            Menu::Help, QT_TRANSLATE_NOOP("Commands", "&Keys and Commands"),  "Ctrl+F1",              Icon::None,          kNothing,                "KEYS",                       false, false},
    {Command::About,           Menu::Help, QT_TRANSLATE_NOOP("Commands", "&About kwdraw"),       "",                     Icon::None,          kNothing,                "ABOUT",                      false, true},
};
constexpr const char* kTitles[] = {
    QT_TRANSLATE_NOOP("Commands", "&File"),
    QT_TRANSLATE_NOOP("Commands", "&Edit"),
    QT_TRANSLATE_NOOP("Commands", "&View"),
    QT_TRANSLATE_NOOP("Commands", "&Help"),
    QT_TRANSLATE_NOOP("Commands", "&Export Selection"),
    QT_TRANSLATE_NOOP("Commands", "&Copy Selection"),
    QT_TRANSLATE_NOOP("Commands", "&Theme"),
};
// clang-format on

QString translated(const char* text)
{
    return QCoreApplication::translate(kContext, text);
}

QStringList typedNamesOf(const CommandRow& row)
{
    return QString::fromLatin1(row.typed).split('|');
}

QList<QKeySequence> keysOf(const CommandRow& row)
{
    QList<QKeySequence> keys;
    for (const QString& each : QString::fromLatin1(row.keys).split(' ', Qt::SkipEmptyParts))
        keys << QKeySequence(each);
    return keys;
}

QString plainText(const CommandRow& row)
{
    return translated(row.text).remove('&').remove("...");
}

/// As it is told outside of its menu, which its own text may take for granted.
QString fullText(const CommandRow& row)
{
    const QString text = plainText(row);
    return row.menu < Menu::Export ? text : titleOf(row.menu).remove('&') + ": " + text;
}

QAction* makeAction(const CommandRow& row, QObject* parent)
{
    auto* action = new QAction(translated(row.text), parent);
    action->setShortcuts(keysOf(row));
    action->setIcon(iconOf(row.icon));
    action->setCheckable(row.checkable);
    QString tip = fullText(row);
    if (!action->shortcut().isEmpty())
        tip += " (" + action->shortcut().toString(QKeySequence::NativeText) + ')';
    action->setToolTip(tip);
    return action;
}

/// Keys that are no shortcuts, and commands with something behind their name.
struct OtherKey
{
    const char* keys;
    const char* act;
    const char* typed = "";
};

// clang-format off
constexpr OtherKey kOtherKeys[] = {
    {QT_TRANSLATE_NOOP("Commands", "Esc"), QT_TRANSLATE_NOOP("Commands", "Ends a box, gives up picking, then deselects")},
    {QT_TRANSLATE_NOOP("Commands", "Enter, Space"), QT_TRANSLATE_NOOP("Commands", "End picking; otherwise go to the command line")},
    {QT_TRANSLATE_NOOP("Commands", "Shift"), QT_TRANSLATE_NOOP("Commands", "While picking: takes away from the selection")},
    {QT_TRANSLATE_NOOP("Commands", "Any letter"), QT_TRANSLATE_NOOP("Commands", "Begins a command in the command line")},
    {QT_TRANSLATE_NOOP("Commands", "Home"), QT_TRANSLATE_NOOP("Commands", "Zooms to the extents")},
    {"", QT_TRANSLATE_NOOP("Commands", "Opens a file"), "OPEN FILE"},
    {"", QT_TRANSLATE_NOOP("Commands", "Writes the selection in the format that the file's name tells"), "EXPORT FILE"},
    {"", QT_TRANSLATE_NOOP("Commands", "Shows a layout"), "LAYOUT NAME"},
    {QT_TRANSLATE_NOOP("Commands", "Wheel"), QT_TRANSLATE_NOOP("Commands", "Zooms at the cursor")},
    {QT_TRANSLATE_NOOP("Commands", "Middle button"), QT_TRANSLATE_NOOP("Commands", "Pans; a double click zooms to the extents")},
};
// clang-format on

QString tableLine(const QString& act, const QString& keys, const QString& typed)
{
    return QString("| %1 | %2 | %3 |\n").arg(act, keys, typed);
}

} // namespace

QString titleOf(Menu menu)
{
    return translated(kTitles[static_cast<int>(menu)]);
}

Commands::Commands(QObject* parent) : QObject(parent)
{
    for (const CommandRow& row : kRows)
        m_actions.push_back(makeAction(row, this));
}

std::span<const CommandRow> Commands::rows()
{
    return kRows;
}

QAction* Commands::action(Command command) const
{
    const auto row = std::find_if(std::begin(kRows), std::end(kRows),
                                  [=](const CommandRow& each) { return each.command == command; });
    return m_actions[static_cast<std::size_t>(row - std::begin(kRows))];
}

void Commands::on(Command command, std::function<void()> act)
{
    connect(action(command), &QAction::triggered, this, [act = std::move(act)] { act(); });
}

void Commands::onToggled(Command command, std::function<void(bool)> act)
{
    connect(action(command), &QAction::toggled, this,
            [act = std::move(act)](bool isOn) { act(isOn); });
}

void Commands::update(unsigned present)
{
    for (std::size_t i = 0; i < m_actions.size(); ++i)
        m_actions[i]->setEnabled((kRows[i].needs & ~present) == 0);
}

std::optional<Command> Commands::byTypedName(const QString& line) const
{
    const QString wanted = line.simplified().toUpper();
    for (const CommandRow& row : kRows) {
        if (typedNamesOf(row).contains(wanted))
            return row.command;
    }
    return std::nullopt;
}

QStringList Commands::typedNames() const
{
    QStringList names;
    for (const CommandRow& row : kRows)
        names << typedNamesOf(row);
    names.sort();
    return names;
}

QString keyTable()
{
    QString table = tableLine(translated(QT_TRANSLATE_NOOP("Commands", "What it does")),
                              translated(QT_TRANSLATE_NOOP("Commands", "Keys")),
                              translated(QT_TRANSLATE_NOOP("Commands", "Command line"))) +
                    "|---|---|---|\n";
    for (const CommandRow& row : kRows) {
        QStringList keys;
        for (const QKeySequence& each : keysOf(row))
            keys << each.toString(QKeySequence::NativeText);
        table += tableLine(fullText(row), keys.join(", "), typedNamesOf(row).join(", "));
    }
    for (const OtherKey& other : kOtherKeys)
        table +=
            tableLine(translated(other.act), translated(other.keys), QLatin1String(other.typed));
    return table;
}
