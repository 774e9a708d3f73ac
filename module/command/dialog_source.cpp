#include <command/dialog_source.h>

#include <QApplication>

#include <editor/command_line.h>

#include <command/dialog_preview.h>
#include <command/matching.h>
#include <dialog/qselect_dialog.h>

DialogSource::DialogSource() = default;

DialogSource::~DialogSource() = default;

bool DialogSource::ask(const Candidates& candidates, FilterChoice& choice)
{
    if (!qobject_cast<QApplication*>(QCoreApplication::instance())) {
        kdutPrintf(L"\nThe quick-select dialog needs a program with windows.");
        return false;
    }
    m_dialog = std::make_unique<CQSelectDialog>(candidates.drawingTypeEntities,
                                                candidates.selectionTypeEntities);
    const DialogPreview preview(*m_dialog, candidates);
    constexpr bool kFromStartingSelection = true;
    if (m_dialog->DoModal(kFromStartingSelection) == IDCANCEL)
        return false;
    choice = {m_dialog->GetDialogParameters(), m_dialog->pickedEntities()};
    return true;
}

std::optional<RememberedRequest> DialogSource::request() const
{
    const DialogParameters& parameters = *m_dialog->GetDialogParameters();
    const PropertyParameters& property = parameters.propertyParameters;
    const auto& value = m_dialog->typedValue();
    if (!value)
        return std::nullopt;
    RememberedRequest request;
    if (!isForAllTypes(parameters)) {
        request.typeName = parameters.objectTypeName;
        request.className = parameters.objectClassName;
    }
    request.propertyKey = property.propertyKey;
    request.axis = property.axis;
    request.kind = value->kind;
    request.operatorText = property.operatorText;
    request.valueText = value->text;
    request.exclude = !parameters.include;
    request.append = parameters.append;
    request.fromSelection = !parameters.entireDrawing;
    constexpr int kPickedInDialog = 0;
    request.overPicked = request.fromSelection && parameters.selectionSource == kPickedInDialog;
    return request;
}
