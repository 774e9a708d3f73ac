#include <command/dialog_source.h>

#include <QApplication>

#include <editor/command_line.h>

#include <dialog/qselect_dialog.h>

DialogSource::DialogSource() = default;

DialogSource::~DialogSource() = default;

bool DialogSource::ask(const std::vector<KdDbEntity*>& drawingTypes,
                       const std::vector<KdDbEntity*>& selectionTypes, FilterChoice& choice)
{
    if (!qobject_cast<QApplication*>(QCoreApplication::instance())) {
        kdutPrintf(L"\nThe quick-select dialog needs a program with windows.");
        return false;
    }
    m_dialog = std::make_unique<CQSelectDialog>(drawingTypes, selectionTypes);
    constexpr bool kFromStartingSelection = true;
    if (m_dialog->DoModal(kFromStartingSelection) == IDCANCEL)
        return false;
    choice = {m_dialog->GetDialogParameters(), m_dialog->pickedEntities()};
    return true;
}
