#include <ui/mru_combos.h>

#include <database/database.h>
#include <database/reserved_strings.h>
#include <editor/system_variables.h>
#include <runtime/status.h>
#include <ui/color_dialog.h>
#include <ui/widgets.h>

#include "color_names.h"
#include "samples.h"
#include "texts.h"

#include <QComboBox>
#include <QSignalBlocker>

namespace {

constexpr int kColorWord = Qt::UserRole + 2;
constexpr int kWeight = Qt::UserRole + 2;

KdUiComboBox* comboOf(const CWnd& window)
{
    return qobject_cast<KdUiComboBox*>(window.widget());
}

KdCmColor indexed(int index)
{
    KdCmColor color;
    color.setColorIndex(index);
    return color;
}

constexpr int kDefaultWeight = -3;

/// 1/100 mm.
constexpr int kWeights[] = {-1, -2, -3, 0,  5,  9,  13,  15,  18,  20,  25,  30,  35, 40,
                            50, 53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211};

bool weightsAreInInches()
{
    resbuf units{};
    return kdedGetVar(L"LWUNITS", &units) == RTNORM && units.resval.rint == 0;
}

QString weightName(int weight, bool inInches)
{
    constexpr double kInches = 0.01 / 25.4;
    switch (weight) {
    case -1:
        return toQString(kddbGetReservedString(ReservedString::ByLayer, false));
    case -2:
        return toQString(kddbGetReservedString(ReservedString::ByBlock, false));
    case kDefaultWeight:
        return toQString(kddbGetReservedString(ReservedString::Default, false));
    default:
        return inInches ? QString::number(weight * kInches, 'f', 3) + QLatin1Char('"')
                        : QString::number(weight * 0.01, 'f', 2) + QStringLiteral(" mm");
    }
}

} // namespace

bool CKdUiMRUComboBox::Create(unsigned int style, const tagRECT& rect, CWnd* parent,
                              unsigned int id)
{
    KdUiComboBox* combo = comboOf(*this);
    if (!combo || !CComboBox::Create(style, rect, parent, id))
        return false;
    const QSignalBlocker quiet(combo);
    combo->clear();
    fill();
    combo->setCurrentIndex(-1);
    m_lastRow = -1;
    return true;
}

int CKdUiMRUComboBox::GetCount() const
{
    const KdUiComboBox* combo = comboOf(*this);
    const int rows = CComboBox::GetCount();
    return combo && combo->otherRow() >= 0 ? rows - 1 : rows;
}

void CKdUiMRUComboBox::OnSelEndOk()
{
    const KdUiComboBox* combo = comboOf(*this);
    const int row = GetCurSel();
    if (!combo || row < 0)
        return;
    if (row != combo->otherRow()) {
        m_lastRow = row;
        return;
    }
    const int other = askForOther();
    SetCurSel(other >= 0 ? other : m_lastRow);
}

KdCmColor CKdUiTrueColorComboBox::colorAt(int row) const
{
    const KdUiComboBox* combo = comboOf(*this);
    return combo && row >= 0 && row < GetCount()
               ? KdCmColor(combo->itemData(row, kColorWord).toUInt())
               : KdCmColor();
}

KdCmColor CKdUiTrueColorComboBox::GetCurrentItemColor() const
{
    return colorAt(GetCurSel());
}

void CKdUiTrueColorComboBox::insertColor(int row, const KdCmColor& color)
{
    KdUiComboBox* combo = comboOf(*this);
    // The current row may move along, which is no choice of another one.
    const QSignalBlocker quiet(combo);
    combo->insertItem(row, colorSample(color), colorName(color));
    combo->setItemData(row, color.color(), kColorWord);
}

void CKdUiTrueColorComboBox::fill()
{
    comboOf(*this)->setIconSize(kColorSampleSize);
    insertColor(0, indexed(KdCmColor::kIndexByLayer));
    insertColor(1, indexed(KdCmColor::kIndexByBlock));
    for (int index = 1; index <= 7; ++index)
        insertColor(index + 1, indexed(index));
    comboOf(*this)->addOtherRow(resourceText(78014, "Other..."));
}

int CKdUiTrueColorComboBox::AddColor(const KdCmColor& color)
{
    if (!comboOf(*this))
        return -1;
    for (int row = 0; row < GetCount(); ++row) {
        if (colorAt(row) == color)
            return row;
    }
    insertColor(kStandardRows, color);
    return kStandardRows;
}

int CKdUiTrueColorComboBox::askForOther()
{
    KdUiColorDialog dialog(colorAt(lastRow()), widget()->window());
    return dialog.exec() == QDialog::Accepted ? AddColor(dialog.color()) : -1;
}

KdDbObjectId CKdUiLineTypeComboBox::idOf(int row) const
{
    return KdDbObjectId(static_cast<KdDbObject*>(GetItemDataPtr(row)));
}

void CKdUiLineTypeComboBox::fill()
{
    KdUiComboBox* combo = comboOf(*this);
    combo->setIconSize(kLinetypeSampleSize);
    KdDbDatabase* database = kddbHostApplicationServices()->workingDatabase();
    if (!database)
        return;
    for (const KdDbObjectId id : database->table<KdDbLinetypeTable>().recordIds()) {
        OpenForRead<KdDbLinetypeTableRecord> record(id);
        if (!record || record->isDependent())
            continue;
        const KdString& name = record->name();
        const bool isIndirect =
            name.compareNoCase(L"ByLayer") == 0 || name.compareNoCase(L"ByBlock") == 0;
        combo->addItem(isIndirect ? emptySample() : linetypeSample(record->dashes()),
                       toQString(name));
        const KdDbObject* object = record.get();
        SetItemDataPtr(combo->count() - 1, const_cast<KdDbObject*>(object));
    }
}

int CKdUiLineWeightComboBox::GetCurrentItemLineWeight() const
{
    const KdUiComboBox* combo = comboOf(*this);
    const int row = GetCurSel();
    return combo && row >= 0 ? combo->itemData(row, kWeight).toInt() : kDefaultWeight;
}

void CKdUiLineWeightComboBox::fill()
{
    KdUiComboBox* combo = comboOf(*this);
    combo->setIconSize(kLineweightSampleSize);
    const bool inInches = weightsAreInInches();
    for (const int weight : kWeights) {
        combo->addItem(weight < 0 ? emptySample() : lineweightSample(weight),
                       weightName(weight, inInches));
        combo->setItemData(combo->count() - 1, weight, kWeight);
    }
}

void CKdUiArrowHeadComboBox::fill()
{
    KdUiComboBox* combo = comboOf(*this);
    combo->setIconSize(kArrowheadSampleSize);
    for (const ArrowheadRow& row : arrowheadRows())
        combo->addItem(arrowheadSample(combo->count()), resourceText(row.id, row.name));
}
