/// The help of the program.
#pragma once

#include <QDialog>

#include <functional>

class HelpBrowser;
class QLabel;
class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

/// Pages with their contents beside them. The pages come with the program.
class HelpWindow : public QDialog
{
    Q_OBJECT
  public:
    explicit HelpWindow(QWidget* parent);

    /// Shows a page, such as "kwdraw.md", or a heading of it: "kwdraw.md#selecting".
    void goTo(const QString& place);

  private:
    void makeContents();
    QLayout* makeBar();
    void addKey(const char* keys, std::function<void()> act);
    void showPlace();
    void search(bool backwards);

    QTreeWidget* m_contents;
    HelpBrowser* m_page;
    QLineEdit* m_wanted;
    QLabel* m_outcome;
};

/// Shows a place of the help beside the other windows, also while one of them waits.
void showHelp(const QString& place, QWidget* parent);
