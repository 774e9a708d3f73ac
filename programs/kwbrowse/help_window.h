/// The help of the program.
#pragma once

class QWidget;

/// Shows how to select by properties and waits until the window is closed.
void showHelp(QWidget* parent);
