/// The combos that know what they list: colours, linetypes, lineweights, arrowheads.
#pragma once

#include <database/color.h>
#include <database/object_id.h>
#include <ui/controls.h>

/// A combo that fills itself with rows of its kind, each with a sample beside its text.
class KW_EXPORT CKdUiMRUComboBox : public CComboBox
{
  public:
    /// Takes the widget into use and fills it. Needs a `KdUiComboBox`.
    bool Create(unsigned int style, const tagRECT& rect, CWnd* parent, unsigned int id) override;

    /// The rows that are values. A row that asks for something else stands behind them and is not
    /// counted.
    int GetCount() const override;

    /// Takes up that a row was chosen. If it is the one for something else, the user is asked, and
    /// the answer becomes a row of its own and the current one; if there is none, the row from
    /// before comes back.
    virtual void OnSelEndOk();

  protected:
    virtual void fill() = 0;
    /// Asks the user for something else and returns its row, or -1.
    virtual int askForOther() { return -1; }
    /// The row that was chosen before the present one; -1 if there was none.
    int lastRow() const { return m_lastRow; }

  private:
    int m_lastRow = -1;
};

/// Rows 0 to 8: by layer, by block, and the colours 1 to 7. Custom colours follow.
class KW_EXPORT CKdUiTrueColorComboBox : public CKdUiMRUComboBox
{
  public:
    static constexpr int kStandardRows = 9;

    /// The colour of the current row; by layer without one.
    KdCmColor GetCurrentItemColor() const;
    /// The row of a colour. A custom one that is not there yet becomes the first custom row.
    int AddColor(const KdCmColor& color);

  protected:
    void fill() override;
    int askForOther() override;

  private:
    KdCmColor colorAt(int row) const;
    void insertColor(int row, const KdCmColor& color);
};

/// The linetypes of the working drawing, without those of external references. A row's data
/// pointer is that of its record's id, see `idOf`.
class KW_EXPORT CKdUiLineTypeComboBox : public CKdUiMRUComboBox
{
  public:
    /// The record of a row; null for a row that is not there.
    KdDbObjectId idOf(int row) const;

  protected:
    void fill() override;
};

/// By layer, by block, default and the 24 fixed lineweights, in the units of "LWUNITS".
class KW_EXPORT CKdUiLineWeightComboBox : public CKdUiMRUComboBox
{
  public:
    /// 1/100 mm, or -1, -2, -3 for by layer, by block, default; -3 without a current row.
    int GetCurrentItemLineWeight() const;

  protected:
    void fill() override;
};

/// The arrowheads of dimensions and leaders, by the names in the current resource library.
class KW_EXPORT CKdUiArrowHeadComboBox : public CKdUiMRUComboBox
{
  protected:
    void fill() override;
};
