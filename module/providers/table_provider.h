/// The common shape of providers: a base, a host class, and a table of rows.
#pragma once

#include <utility>

#include <providers/lasting_row.h>

/// Lists the base's properties and then `Self::rows()`; answers a key from the rows or asks the
/// base. Entities that are not of `Host` are not answered for at all.
template <class Self, class Base, class Host>
class TableProvider : public Base
{
  public:
    int PropertyCount(const KdDbEntity* entity, KdArray<KdString>& names,
                      KdArray<bool>& flags) override
    {
        const int status = Base::PropertyCount(entity, names, flags);
        listRows(Self::rows(), entity, names, flags);
        return status;
    }

    int PropertyValueGet(const KdDbEntity* entity, KdString name, ResBuf*& result,
                         bool asDisplayText, bool withChoices) override
    {
        if (!entity || !entity->isKindOf(Host::desc()))
            return 0;
        if (const PropertyRow* row = findRow(Self::rows(), name))
            return answerRow(*row, {*entity, *result, asDisplayText, withChoices});
        return Base::PropertyValueGet(entity, std::move(name), result, asDisplayText, withChoices);
    }

    using SaysRows = TableProvider;
    LastingRow lastingRow(const KdRxClass& rxClass, const KdString& key)
    {
        if (!rxClass.isDerivedFrom(Host::desc()))
            return nullptr;
        const LastingRow own = findLastingRow(Self::rows(), key);
        return own == nullptr ? lastingRowOf<Base>(*this, rxClass, key) : own;
    }
};

/// A provider whose rows stand in a source file of its own.
#define KW_TABLE_PROVIDER(Provider, Base, Host)                                                    \
    class Provider : public TableProvider<Provider, Base, Host>                                    \
    {                                                                                              \
      public:                                                                                      \
        static std::span<const PropertyRow> rows();                                                \
    };

/// A provider that answers what its base does, but for entities of `Host` alone.
#define KW_CLASS_CHECKED_PROVIDER(Provider, Base, Host)                                            \
    class Provider : public TableProvider<Provider, Base, Host>                                    \
    {                                                                                              \
      public:                                                                                      \
        static std::span<const PropertyRow> rows() { return {}; }                                  \
    };

/// A provider that overrides nothing: it answers what its base does, for every entity.
#define KW_PLAIN_PROVIDER(Provider, Base)                                                          \
    class Provider : public Base                                                                   \
    {                                                                                              \
    };
