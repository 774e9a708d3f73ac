/// The dialog that asks for the filter of a run.
#pragma once

#include <functional>
#include <optional>

#include <ui/dialog.h>
#include <ui/mru_combos.h>
#include <ui/tool_tip.h>

#include <dialog/filter_record.h>
#include <dialog/list_controls.h>
#include <dialog/type_catalog.h>
#include <providers/property_row.h>

class QComboBox;

/// The controls form a chain: what the filter applies to decides on the object types, the type on
/// the properties, the property on the operators, and both on the control for the value. Each
/// handler refills the next link and so all that follow.
class CQSelectDialog : public CKdUiDialog, public TypeCatalog
{
    Q_OBJECT
  public:
    using Value = PropertyValue;

    /// @param drawing    one entity of each type in the current space
    /// @param selection  one entity of each type in the starting selection
    CQSelectDialog(const std::vector<KdDbEntity*>& drawing,
                   const std::vector<KdDbEntity*>& selection);
    ~CQSelectDialog() override;

    /// Shows the dialog and waits for its end.
    /// @param resetSource  true: the starting selection is the one to select from, whatever was
    ///                     picked before
    /// @return             `IDOK` or `IDCANCEL`
    int DoModal(bool resetSource);

    /// What was asked for; lives as long as the dialog.
    const DialogParameters* GetDialogParameters() const { return &m_asked.parameters; }
    PropertyParameters GetPropertyParameter() const
    {
        return m_asked.parameters.propertyParameters;
    }
    /// The value that was asked for as a text of its kind, from which the same filter can be read.
    struct TypedValue
    {
        int kind = ResBuf::kNone;
        KdString text;
    };
    /// Empty if all values are asked for; none if no text gives the same filter.
    const std::optional<TypedValue>& typedValue() const { return m_asked.typedValue; }

    /// A filter as the controls tell it. Owns its records.
    struct Asked
    {
        Asked() = default;
        ~Asked() { ResBuf::relRb(parameters.filter); }
        Asked(const Asked&) = delete;
        Asked& operator=(const Asked&) = delete;

        void AddFilter(ResBuf* record);

        DialogParameters parameters;
        ResBuf* filterTail = nullptr;
        std::optional<TypedValue> typedValue;
        std::optional<ResourceText> refusal; ///< what the user is told of a value that is none
    };
    /// Reads the filter as it stands, as `OnOK` would, but tells nobody and keeps nothing. False if
    /// `OnOK` can't be asked for or would go no further.
    bool peek(Asked& asked);
    /// Is told of each change of the filter while the dialog shows. Empty: nobody is.
    void setWatcher(std::function<void()> watcher) { m_watcher = std::move(watcher); }

    /// What was picked, otherwise the second list of the constructor.
    const std::vector<KdDbEntity*>& pickedEntities() const { return m_pickedEntities; }

    bool OnInitDialog() override;
    void OnHelpInfo() override { OnHelp(); }
    void DoDataExchange(CDataExchange* exchange) override;
    bool PreTranslateMessage(tagMSG* message) override;

  public slots:
    void OnApplyToChange();
    void OnObjectTypeChange();
    void OnPropertiesChange();
    void OnOperatorChange();
    void OnTextEditChange();
    void OnSelectEntities();
    void OnShowListValuesCheckChanged();
    void OnHowToApplyRadioChanged();
    void OnHelp();
    void OnOK() override;
    void OnCancel() override;
    void OnComboBoxCurrentChanged(int row);
    void OnDefaultComboChange();
    void OnFilterChanged();

  private:
    void InitData();
    void bindSingals();
    void enterTypes(const std::vector<KdDbEntity*>& entities,
                    std::vector<CStdStr<wchar_t>>& typeNames,
                    std::vector<CStdStr<wchar_t>>& classNames);

    // the look, in dialog_controls.cpp
    void fitValueEdit();
    void placeSelectButton();
    void makeValueCombos();
    void makeDefaultCombo(const tagRECT& rect);
    void bindComboBox(CKdUiMRUComboBox* control, QComboBox* widget, const tagRECT& rect);
    void SetToolTip();
    void showAsValueControl(CWnd& control);

    // the chain, in dialog_chain.cpp
    void FillApplyToCombo();
    void FillObjectTypeCombo();
    void FillPropertiesList();
    void FillOperatorCombo();
    void withdrawCurrentSelection();
    void DoSelectEntities();
    void takePicked(const long* set);

    // the value, in dialog_values.cpp
    void FillValueComboOrEdit();
    bool offersList(const Value& value, Operators op) const;
    void showEdit();
    CWnd* prepareCombo(const Value& value, const std::wstring& shortName);
    void fillColorCombo();
    void fillDefaultCombo(const std::vector<std::wstring>& strings, int& row);
    bool fillFromDrawing(const std::wstring& typeName, const std::wstring& shortName);

    // the outcome, in dialog_outcome.cpp
    bool read(Asked& asked);
    KdString GetStringValue(bool useCombo, CEdit* edit, CComboBox* combo) const;
    void readFlags(DialogParameters& parameters) const;
    void readProperty(int row, DialogParameters& parameters);
    bool readFilter(Asked& asked);
    bool readValue(const Value& value, Operators op, Asked& asked);
    std::optional<KdString> valueText(const Value& value, Operators op);
    void refuse(const ResourceText& text);
    void keepCustomColors();
    void writeShowListValues();

    // what is remembered, in dialog_settings.cpp
    void InitCurPropertiesFromRegistry();
    void writeCurPropertiesToRegistry();
    void readShowListValues();

    CStdStr<wchar_t> textOf(const char* combo) const;
    CStdStr<wchar_t> currentProperty() const;
    std::optional<Operators> currentOperator() const;
    const Value* currentValue() const;

    std::vector<KdDbEntity*> m_pickedEntities;
    std::vector<CStdStr<wchar_t>> m_drawingTypeNames;
    std::vector<CStdStr<wchar_t>> m_selectionTypeNames;
    std::vector<CStdStr<wchar_t>> m_drawingClassNames; ///< parallel to the type names
    std::vector<CStdStr<wchar_t>> m_selectionClassNames;

    CKdUiLineWeightComboBox m_lineWeightCombo;
    CKdUiTrueColorComboBox m_colorCombo;
    CKdUiLineTypeComboBox m_lineTypeCombo;
    CKdUiArrowHeadComboBox m_arrowHeadCombo;
    CQselectComboBox m_valueCombo;
    CWnd* m_currentValueControl = nullptr; ///< the combo that shows, or that shows next
    CToolTipCtrl m_toolTip;

    int m_layerIndex = -1; ///< rows of the value combos that outlive a change of property
    int m_plotStyleIndex = -1;
    int m_colorIndex = -1;
    bool m_restoreColor = false; ///< `m_colorIndex` counts at the next showing of colours
    bool m_showListValues = false;

    Asked m_asked;
    std::function<void()> m_watcher;
};
