#include <dialog/qselect_dialog.h>

#include <set>

#include <editor/selection_sets.h>

#include <values/host_set.h>

void CQSelectDialog::OnSelectEntities()
{
    DoSelectEntities();
}

void CQSelectDialog::DoSelectEntities()
{
    constexpr int kPickedInDialog = 0;
    m_asked.parameters.selectionSource = kPickedInDialog;
    BeginEditorCommand();
    kdedSSSetFirst(nullptr, nullptr);
    {
        const HostSet picked = HostSet::promptedFor();
        if (picked.status() == RTNORM && memberCount(picked.name()) > 0)
            takePicked(picked.name());
    }
    CompleteEditorCommand(1);
    for (KdDbEntity* entity : m_pickedEntities)
        AddNewTypeProperties(GetLocalNameOfKdDbEntity(entity), entity);
    FillApplyToCombo();
    OnFilterChanged();
}

void CQSelectDialog::takePicked(const long* set)
{
    m_selectionTypeNames.clear();
    m_selectionClassNames.clear();
    m_pickedEntities.clear();
    std::set<std::wstring> seen;
    forEachMember(set, [&](KdDbObjectId id, const long* name) {
        kdedSSFree(name); // hosts may keep something for a name, this one does not
        const OpenForRead<KdDbEntity> entity(id);
        if (!entity)
            return;
        auto* const picked = const_cast<KdDbEntity*>(entity.get());
        const CStdStr<wchar_t> typeName = GetLocalNameOfKdDbEntity(picked);
        if (seen.insert(typeName).second) {
            m_selectionTypeNames.push_back(typeName);
            m_selectionClassNames.emplace_back(picked->isA()->name());
        }
        m_pickedEntities.push_back(picked);
    });
}
