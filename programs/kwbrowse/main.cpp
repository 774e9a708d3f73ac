#include <ui/message_box_windows.h>
#include <ui/theme.h>

#include <QApplication>

#include <iostream>
#include <optional>
#include <string>

#include <CLI/CLI.hpp>

#include <kwbrowse/browse_window.h>
#include <kwbrowse/remembered_variables.h>

namespace {

constexpr int kCannotWork = 2;

struct Options
{
    std::string drawing;
    std::string colors; ///< as they were, where it says nothing
};

/// The exit status, if the options say all there is to do.
std::optional<int> readOptions(int argc, char** argv, Options& options)
{
    CLI::App app("Lists the objects of a drawing and selects among them by their properties.",
                 "kwbrowse");
    app.add_option("drawing", options.drawing, "a DXF file");
    app.add_option("--colors", options.colors, "the colours of the windows")
        ->check(CLI::IsMember({"dark", "light"}));
    app.set_version_flag("--version", KW_VERSION);
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
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    Options options;
    if (const auto status = readOptions(argc, argv, options))
        return *status;
    installMessageBoxWindows();
    Module module;
    if (!module.load(modulePath())) {
        std::cerr << "kwbrowse: " << module.error() << '\n';
        return kCannotWork;
    }
    restoreVariables();
    if (!options.colors.empty())
        setSwitch(L"COLORTHEME", options.colors == "light" ? 1 : 0);
    kduiApplyColorTheme();
    BrowseWindow window(module);
    window.show();
    if (!options.drawing.empty() && !window.open(QString::fromLocal8Bit(options.drawing.c_str())))
        return kCannotWork;
    const int status = QApplication::exec();
    storeVariables();
    return status;
}
