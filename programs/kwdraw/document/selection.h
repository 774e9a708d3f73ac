/// The selection of the drawing that is open, with its history.
#pragma once

#include <QObject>

#include <vector>

#include <database/object_id.h>

/// Follows the host's pickfirst selection and changes it. Each change, also one made by a command,
/// is a step that can be taken back.
class Selection : public QObject
{
    Q_OBJECT
  public:
    explicit Selection(QObject* parent = nullptr);
    ~Selection() override;

    /// In the order in which they were selected.
    const std::vector<KdDbObjectId>& ids() const { return m_ids; }
    bool contains(KdDbObjectId id) const;

    void set(const std::vector<KdDbObjectId>& ids);
    void add(const std::vector<KdDbObjectId>& ids);
    void remove(const std::vector<KdDbObjectId>& ids);
    /// Selects of `all` what is not selected now.
    void invert(const std::vector<KdDbObjectId>& all);
    void clear() { set({}); }

    bool canUndo() const { return !m_undo.empty(); }
    bool canRedo() const { return !m_redo.empty(); }
    void undo();
    void redo();
    /// Forgets selection and history; for a drawing that goes.
    void reset();

  signals:
    void changed();

  private:
    std::vector<KdDbObjectId> m_ids;
    std::vector<std::vector<KdDbObjectId>> m_undo;
    std::vector<std::vector<KdDbObjectId>> m_redo;
};
