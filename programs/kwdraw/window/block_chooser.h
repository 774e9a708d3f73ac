/// Asks which block definition is to be opened.
#pragma once

#include <QDialog>

#include <database/object_id.h>

class KdDbDatabase;
class QLineEdit;
class QListWidget;
class QPushButton;

/// Lists the blocks of a drawing that can be opened, by name.
class BlockChooser : public QDialog
{
    Q_OBJECT
  public:
    explicit BlockChooser(const KdDbDatabase& database, QWidget* parent = nullptr);

    /// Of the drawing; the null id if none is chosen.
    KdDbObjectId chosen() const;

  private:
    void list(const KdDbDatabase& database);
    void filter(const QString& part);
    void updateButton();
    bool eventFilter(QObject* watched, QEvent* event) override;

    const KdDbDatabase& m_database;
    QLineEdit* m_filter;
    QListWidget* m_blocks;
    QPushButton* m_open;
};
