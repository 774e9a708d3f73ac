/// What the dialog that is open would select, told to the host while the user sets it up.
#pragma once

#include <memory>
#include <optional>

#include <plugin/quick_select.h>

#include <command/filter_preview.h>
#include <dialog/qselect_dialog.h>

/// Stands for one showing of the dialog. The host's watcher hears of its beginning, of each change
/// of the filter, and of its end.
class DialogPreview
{
  public:
    /// Both must outlive it.
    DialogPreview(CQSelectDialog& dialog, const Candidates& candidates);
    ~DialogPreview();
    DialogPreview(const DialogPreview&) = delete;
    DialogPreview& operator=(const DialogPreview&) = delete;

    /// Goes on with the filter that the dialog shows now.
    void visit(std::chrono::milliseconds time, quick_select::PreviewVisitor visitor, void* context);

  private:
    void begin();

    CQSelectDialog& m_dialog;
    const Candidates& m_candidates;
    CQSelectDialog::Asked m_asked;
    bool m_isRead = false;                  ///< what was asked for is what the dialog shows
    std::optional<FilterPreview> m_preview; ///< none: the dialog can't be accepted as it stands
    DialogPreview* const m_outer;
};

/// Null: nobody watches.
void watchDialog(quick_select::DialogWatcher watcher, void* context);
/// For the dialog that is open; without one the visitor is told so.
void previewDialog(int milliseconds, quick_select::PreviewVisitor visitor, void* context);
