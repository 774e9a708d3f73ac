/// Filters with names, shared with kwselect, and those that were run last.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include <QFileSystemWatcher>
#include <QTimer>
#include <QWidget>

#include <common/filter_file.h>
#include <common/recent_filters.h>

class QLabel;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

/// Lists the user's filters. A double click or Enter asks for a run; names are changed in place.
/// Follows the files when another program changes them, and tells which of its lines are wrong.
class SavedFilters : public QWidget
{
    Q_OBJECT
  public:
    explicit SavedFilters(QWidget* parent = nullptr,
                          const std::filesystem::path& file = userFilterFile(),
                          const std::filesystem::path& recent = recentFilterFile());
    ~SavedFilters() override;

    /// Notes a run that has come to its end: it is the latest one, and can be saved.
    /// @param text  its filter; empty if the run can't be told as one
    void noteRun(const std::wstring& text);
    const FilterFile& filters() const { return m_file; }
    /// The filters that were run last, the latest first.
    const std::vector<std::wstring>& recent() const { return m_recent.texts(); }
    void forgetRecent();
    /// Something is to be told about a filter, such as why it can't be run here.
    void tell(const QString& problem);

  signals:
    /// `runFilter` in filter_running.h does it; a success is to be noted.
    void runRequested(const QString& text);
    void recentChanged();

  private:
    void makeList();
    QPushButton* addButton(const QString& text, const char* name, void (SavedFilters::*act)());
    void watch();
    void reload();
    void list();
    void addNamed();
    void addRecent();
    void enableButtons();
    void run();
    void saveLast();
    void rename();
    void remove();
    void takeName(QTreeWidgetItem* item);
    void keepOrTell(bool isDone, const std::string& problem);
    std::wstring freeName() const;
    QTreeWidgetItem* itemOf(const QString& name) const;

    FilterFile m_file;
    RecentFilters m_recent;
    FilterFile::Problems m_wrongLines;
    std::wstring m_last; ///< the filter that can be saved; empty: none
    QFileSystemWatcher m_watcher;
    QTimer m_settle;
    bool m_isListing = false;
    QTreeWidget* m_list;
    QPushButton* m_run;
    QPushButton* m_save;
    QPushButton* m_rename;
    QPushButton* m_remove;
    QLabel* m_problem;
};
