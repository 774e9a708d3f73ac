/// The filters by which the layers of a drawing can be shown.
#pragma once

#include <runtime/kd_string.h>
#include <runtime/status.h>

class KdDbDatabase;

/// Says which layers a list shows.
class KW_EXPORT KdLyLayerFilter
{
  public:
    explicit KdLyLayerFilter(const wchar_t* name) : m_name(name) {}
    const KdString& name() const { return m_name; }

  private:
    KdString m_name;
};

/// The filters of a drawing: one, which shows all layers and is in use. Filters that drawings store
/// are not read.
class KW_EXPORT KdLyLayerFilterManager
{
  public:
    /// Gives the root of all filters and the one in use. They live as long as the program.
    KdErrorStatus getFilters(const KdLyLayerFilter*& root, const KdLyLayerFilter*& current) const;

  private:
    KdLyLayerFilter m_all{L"All"};
};

/// The filters of a drawing, owned by the host; null for null.
KW_EXPORT const KdLyLayerFilterManager* kdlyGetLayerFilterManager(const KdDbDatabase* database);
