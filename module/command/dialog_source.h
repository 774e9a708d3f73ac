/// The filter of a run, asked for in a dialog.
#pragma once

#include <memory>
#include <optional>

#include <command/filter_source.h>
#include <command/last_request.h>

class CQSelectDialog;

/// Shows the dialog. It and the filter in it live as long as the source.
class DialogSource : public FilterSource
{
  public:
    DialogSource();
    ~DialogSource() override;
    DialogSource(const DialogSource&) = delete;
    DialogSource& operator=(const DialogSource&) = delete;

    /// In a program without windows it says so on the command line and answers false.
    bool ask(const Candidates& candidates, FilterChoice& choice) override;

    /// What was asked for, in words; none if there are no words for it. Only after an `ask` that
    /// answered true.
    std::optional<RememberedRequest> request() const;

  private:
    std::unique_ptr<CQSelectDialog> m_dialog;
};
