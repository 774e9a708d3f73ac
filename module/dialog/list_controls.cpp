#include <dialog/list_controls.h>

const CRuntimeClass* CQselectComboBox::GetRuntimeClass() const
{
    static const CRuntimeClass record = {"CQselectComboBox", CComboBox::GetRuntimeClass()};
    return &record;
}
