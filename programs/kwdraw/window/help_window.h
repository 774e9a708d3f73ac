/// The help of the program.
#pragma once

class QWidget;

enum class HelpPage
{
    Program,
    QuickSelect,
};

/// Shows the help beside the other windows, also while one of them waits.
void showHelp(HelpPage page, QWidget* parent);
