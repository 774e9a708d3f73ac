/// The selection of the drawing that is open, with its history.
#pragma once

#include <QObject>

#include <deque>
#include <vector>

#include <database/object_id.h>

/// Follows the host's pickfirst selection and changes it. Each change, also one made by a command,
/// is a step that can be taken back. There may be one of it at a time.
class Selection : public QObject
{
    Q_OBJECT
  public:
    using Ids = std::vector<KdDbObjectId>;

    /// As many steps can be taken back, fewer if they hold very many entities together.
    static constexpr std::size_t kMostSteps = 100;
    static constexpr std::size_t kMostIdsInHistory = 4'000'000;

    explicit Selection(QObject* parent = nullptr);
    ~Selection() override;

    /// In the order in which they were selected.
    const Ids& ids() const { return m_ids; }

    void set(const Ids& ids);
    void add(const Ids& ids);
    void remove(const Ids& ids);
    /// Selects of `all` what is not selected now.
    void invert(const Ids& all);
    void clear() { set({}); }

    bool canUndo() const { return !m_undo.empty(); }
    bool canRedo() const { return !m_redo.empty(); }
    void undo();
    void redo();
    /// Forgets selection and history; for a drawing that goes.
    void reset();

    /// All changes made while it lives are one step.
    class OneStep
    {
      public:
        explicit OneStep(Selection& selection);
        ~OneStep();
        OneStep(const OneStep&) = delete;
        OneStep& operator=(const OneStep&) = delete;

      private:
        Selection& m_selection;
        Ids m_before;
    };

  signals:
    void changed();
    /// A command has handed its outcome over, also if that is what was selected before.
    void handedOver();

  private:
    void follow(int flags);
    void take(Ids ids);
    void remember(Ids before);
    /// Goes one step along: from the end of one history into the other.
    void step(std::deque<Ids>& from, std::deque<Ids>& to);

    Ids m_ids;
    std::deque<Ids> m_undo;
    std::deque<Ids> m_redo;
    std::size_t m_idsInUndo = 0;
    int m_openSteps = 0;
};
