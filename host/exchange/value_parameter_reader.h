// Reads the named quantities of actions and their bodies.
#pragma once

#include <database/associativity.h>

#include "record_reader.h"

namespace dxf {

/// Reads quantities: the name, the unit, the number of values, then each value with a reference.
class ValueParameterReader
{
  public:
    explicit ValueParameterReader(std::vector<AssocValueParameter>& values) : m_values(values) {}

    void take(RecordReader& reader)
    {
        switch (m_expected) {
        case Expected::Name:
            takeName(reader);
            break;
        case Expected::Unit:
            takeUnit(reader);
            break;
        case Expected::Count:
            takeCount(reader);
            break;
        case Expected::Value:
            takeValue(reader);
            break;
        }
    }

  private:
    enum class Expected
    {
        Name,
        Unit,
        Count,
        Value,
    };

    void takeName(RecordReader& reader)
    {
        if (reader.code() != 1)
            return;
        m_values.push_back({reader.text(), {}, 0, {}});
        m_expected = Expected::Unit;
    }

    void takeUnit(RecordReader& reader)
    {
        if (reader.code() != 90)
            return;
        m_values.back().unit = reader.integer();
        m_expected = Expected::Count;
    }

    void takeCount(RecordReader& reader)
    {
        if (reader.code() != 90)
            return;
        m_left = reader.integer();
        m_expected = m_left > 0 ? Expected::Value : Expected::Name;
    }

    void takeValue(RecordReader& reader)
    {
        switch (reader.code()) {
        case 1:
            add(KdDbEvalVariant(reader.text(), 1));
            break;
        case 40:
            add(KdDbEvalVariant(reader.real(), 40));
            break;
        case 70:
        case 90:
            add(KdDbEvalVariant(reader.integer(), static_cast<short>(reader.code())));
            break;
        default: // the reference behind the value before
            break;
        }
    }

    void add(const KdDbEvalVariant& value)
    {
        m_values.back().values.push_back(value);
        if (--m_left <= 0)
            m_expected = Expected::Name;
    }

    std::vector<AssocValueParameter>& m_values;
    Expected m_expected = Expected::Name;
    int m_left = 0;
};

} // namespace dxf
