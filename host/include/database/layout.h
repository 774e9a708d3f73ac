/// Layouts: the model and the sheets.
#pragma once

#include <database/object.h>

struct KW_EXPORT LayoutMembers : ObjectMembers
{
    KdString name;
    KdDbObjectId block;
    int tabOrder = 0;
    KdDbHandle lastActiveViewport = 0;
};

class KW_EXPORT KdDbLayout : public KdDbObject
{
    KD_RX_DECLARE(KdDbLayout)
    KD_DB_MEMBERS(LayoutMembers)

    const KdString& getLayoutName() const { return data().name; }
    KdDbObjectId getBlockTableRecordId() const { return data().block; }
    int getTabOrder() const { return data().tabOrder; }
};

/// Finds layouts and knows which one is active.
class KW_EXPORT KdDbLayoutManager
{
  public:
    /// The block of the active layout: the model's while TILEMODE is 1, otherwise that of the
    /// active sheet. A null `database` means the working database; null id if there is none.
    KdDbObjectId getActiveLayoutBTRId(const KdDbDatabase* database = nullptr) const;
    /// The block of a layout by its name, without case; null id if there is none.
    KdDbObjectId findBlock(const wchar_t* layoutName, const KdDbDatabase* database = nullptr) const;
    /// Makes a layout the active one and sets TILEMODE accordingly; `eKeyNotFound`.
    KdErrorStatus setCurrentLayout(const wchar_t* name, KdDbDatabase* database = nullptr);
};
