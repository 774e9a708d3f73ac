/// The selection on its way out of the program: into files and the clipboard.
#pragma once

#include <QObject>

#include <memory>
#include <string>
#include <vector>

#include <kwdraw/panels/selection_export.h>

class Document;

/// Writes one selection at a time. What is being written is given up when its drawing goes.
class SelectionOutput : public QObject
{
    Q_OBJECT
  public:
    /// Both must outlive the object.
    SelectionOutput(const Module& module, Document& document, QObject* parent = nullptr);
    ~SelectionOutput() override;

    void copy(ExportFormat format, std::vector<std::string> columns);
    void write(const QString& file, const ExportOptions& options);
    bool isRunning() const { return m_export != nullptr; }
    void cancel();

  signals:
    void progressed(double part);
    /// `sentence` says what was done, or why it was not.
    void ended(const QString& sentence, bool isProblem);

  private:
    SelectionExport& begin(const QString& onSuccess);

    const Module& m_module;
    Document& m_document;
    std::unique_ptr<SelectionExport> m_export;
};

/// The format of files that end as this one; handles for any other ending.
ExportFormat formatOf(const QString& file);
