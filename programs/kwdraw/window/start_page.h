/// What the window shows while no drawing is open.
#pragma once

#include <QWidget>

class QVBoxLayout;

class StartPage : public QWidget
{
    Q_OBJECT
  public:
    explicit StartPage(QWidget* parent = nullptr);
    void setRecentFiles(const QStringList& files);

  signals:
    void openWanted();
    void fileWanted(const QString& path);

  private:
    QVBoxLayout* m_files;
};
