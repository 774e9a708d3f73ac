/// The names of the dialog's controls.
#pragma once

namespace ControlName {
constexpr char kApplyTo[] = "IDC_QSELECT_APPLY_TO_COMBO";
constexpr char kSelectObjects[] = "IDC_QSELECT_SELECT_OBJECTS_BUTTON";
constexpr char kObjectType[] = "IDC_QSELECT_OBJECT_TYPE_COMBO";
constexpr char kProperties[] = "IDC_QSELECT_PROPERTIES_LIST";
constexpr char kOperator[] = "IDC_QSELECT_OPERATOR_COMBO";
constexpr char kValueLabel[] = "IDC_QSELECT_VALUE_LABEL";
constexpr char kValueEdit[] = "IDC_QSELECT_VALUE_EDIT";
constexpr char kValueCombo[] = "IDC_QSELECT_VALUE_COMBO";
constexpr char kInclude[] = "IDC_QSELECT_INCLUDE_BUTTON";
constexpr char kExclude[] = "IDC_QSELECT_EXCLUDE_BUTTON";
constexpr char kAppend[] = "IDC_QSELECT_APPEND_CHECK_BUTTON";
constexpr char kShowListValues[] = "IDC_QSELECT_SHOWLISTVALUES_CHECK_BUTTON";
constexpr char kOk[] = "IDOK";
constexpr char kCancel[] = "IDCANCEL";
constexpr char kHelp[] = "IDHELP";
} // namespace ControlName
