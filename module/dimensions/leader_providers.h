/// Providers of the leaders.
#pragma once

#include <entities/all.h>
#include <plugin/entity_pe.h>

#include <providers/table_provider.h>

class KdDbLeader_Extension
    : public TableProvider<KdDbLeader_Extension, KdDbEntity_Extension, KdDbLeader>
{
  public:
    static std::span<const PropertyRow> rows();

    /// Makes `result` a text record with the text of the arrowhead whose key `name` is, letter by
    /// letter, and chains the texts of all arrowheads behind it. An empty name stands for the first
    /// one; for the key of none the text stays as it was.
    void setBLKArray(ResBuf*& result, KdString name);
};

KW_TABLE_PROVIDER(KdDbMLeader_Extension, KdDbEntity_Extension, KdDbMLeader)
