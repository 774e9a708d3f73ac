#include <ui/message_box_windows.h>

#include <QApplication>

#include <iostream>
#include <optional>
#include <string>

#include <CLI/CLI.hpp>

#include <kwdraw/document/settings.h>
#include <kwdraw/document/user_language.h>
#include <kwdraw/window/main_window.h>
#include <kwdraw/window/theme.h>

namespace {

constexpr int kCannotWork = 2;

struct Options
{
    std::string drawing;
    std::string layout;
    std::string colors; ///< as they were, where it says nothing
};

/// The exit status, if the options say all there is to do.
std::optional<int> readOptions(int argc, char** argv, Options& options)
{
    CLI::App app("Shows a drawing and selects among its objects by their properties.", "kwdraw");
    CLI::Option* drawing =
        app.add_option("DRAWING", options.drawing,
                       "A DXF file, or a DWG file where the converter dwg2dxf is on the path");
    drawing->option_text(" ");
    app.add_option("--layout", options.layout, "The layout to show first: Model or a sheet")
        ->option_text("NAME")
        ->needs(drawing);
    app.add_option("--colors", options.colors,
                   "The colours of the windows: system, light, dark or contrast")
        ->option_text("NAME")
        ->check(CLI::IsMember({"system", "light", "dark", "contrast"}));
    app.set_version_flag("--version", "kwdraw " KW_VERSION, "Print the version and exit");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& problem) {
        return app.exit(problem) == 0 ? 0 : kCannotWork;
    }
    return std::nullopt;
}

} // namespace

int main(int argc, char** argv)
{
    Options options;
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    // Options of our own are answered where there is no display, too.
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (argument == "--version" || argument == "--help" || argument == "-h")
            return *readOptions(argc, argv, options);
    }
    QApplication application(argc, argv);
    QApplication::setApplicationName("kwdraw");
    QApplication::setApplicationVersion(KW_VERSION);
    if (const auto status = readOptions(argc, argv, options))
        return *status;
    installMessageBoxWindows();
    const Translation translation;
    Module module;
    if (!module.load(modulePath())) {
        std::cerr << "kwdraw: " << module.error() << '\n';
        return kCannotWork;
    }
    restoreVariables();
    if (const auto theme = themeNamed(QString::fromStdString(options.colors)))
        storeTheme(*theme);
    MainWindow window(module);
    window.show();
    if (!options.drawing.empty())
        window.openFile(QString::fromLocal8Bit(options.drawing.c_str()),
                        QString::fromLocal8Bit(options.layout.c_str()));
    return QApplication::exec();
}
