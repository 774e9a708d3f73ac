/// What the quick-select dialog would select, while the user sets its filter up.
#pragma once

#include <QObject>
#include <QTimer>

#include <vector>

#include <common/module.h>

/// Asks the module after each change of the filter, in pieces that don't hold the window up. There
/// may be one of it at a time.
class MatchPreview : public QObject
{
    Q_OBJECT
  public:
    using Ids = std::vector<KdDbObjectId>;

    /// @param module  loaded; must outlive this
    MatchPreview(const Module& module, QObject* parent);
    ~MatchPreview() override;

    void setOn(bool on);
    /// Shows nothing until the filter changes: the dialog has gone, or is hidden for picking.
    void clear();

  signals:
    /// A line on how much it is; empty when there is nothing to tell.
    void told(const QString& line);
    void found(const Ids& ids);

  private:
    void begin();
    void goOn();
    void take(const quick_select::Preview& preview);
    void show(const Ids& ids);

    const Module& m_module;
    QTimer m_timer;
    bool m_isOn = true;
    bool m_isShown = false;
};
