#include <blocks/block_reference_providers.h>
#include <providers/row_readers.h>

namespace {

// clang-format off
constexpr PropertyRow kRows[] = {
    // key: id, default text             read-only  kind            value
    {{77526, L"Misc:Columns"},           editable,  ResBuf::kInt16, value<&KdDbMInsertBlock::columns>},
    {{77527, L"Misc:Column spacing"},    editable,  ResBuf::kReal,  value<&KdDbMInsertBlock::columnSpacing>},
    {{77528, L"Misc:Rows"},              editable,  ResBuf::kInt16, value<&KdDbMInsertBlock::rows>},
    {{77529, L"Misc:Row spacing"},       editable,  ResBuf::kReal,  value<&KdDbMInsertBlock::rowSpacing>},
};
// clang-format on

} // namespace

int KdDbMInsertBlock_Extension::PropertyCount(const KdDbEntity* entity, KdArray<KdString>& names,
                                              KdArray<bool>& flags)
{
    // The grid's keys go with any reference; only its values need a grid.
    if (!entity || !entity->isKindOf(KdDbBlockReference::desc()))
        return 0;
    const int status = KdDbBlockReference_Extension::PropertyCount(entity, names, flags);
    listRows(kRows, entity, names, flags);
    return status;
}

int KdDbMInsertBlock_Extension::PropertyValueGet(const KdDbEntity* entity, KdString name,
                                                 ResBuf*& result, bool asDisplayText,
                                                 bool withChoices)
{
    if (!entity || !entity->isKindOf(KdDbMInsertBlock::desc()))
        return 0;
    if (const PropertyRow* row = findRow(kRows, name))
        return answerRow(*row, {*entity, *result, asDisplayText, withChoices});
    return KdDbBlockReference_Extension::PropertyValueGet(entity, name, result, asDisplayText,
                                                          withChoices);
}
