/// Values whose kind is known only at run time: what parameters of blocks and of associative
/// objects hold.
#pragma once

#include <variant>

#include <geometry/point.h>
#include <runtime/kd_string.h>
#include <runtime/resbuf.h>
#include <runtime/status.h>

/// A value with the restype under which it is kept; `RTNONE` while it has none.
class KW_EXPORT KdDbEvalVariant
{
  public:
    KdDbEvalVariant() = default;
    KdDbEvalVariant(double value, short restype = RTREAL) : m_value(value), m_restype(restype) {}
    KdDbEvalVariant(int value, short restype = RTLONG) : m_value(value), m_restype(restype) {}
    KdDbEvalVariant(const KdString& value, short restype = RTSTR)
        : m_value(value), m_restype(restype)
    {
    }
    KdDbEvalVariant(const KdGePoint3d& value, short restype = RT3DPOINT)
        : m_value(value), m_restype(restype)
    {
    }

    short restype() const { return m_restype; }
    bool isEmpty() const { return m_value.index() == 0; }

    // Each gives the value; `eNotApplicable`, with `value` untouched, if it is of another kind.

    /// A number of either kind.
    KdErrorStatus getValue(double& value) const;
    /// The same, a real cut towards zero and held within the range of the integer.
    KdErrorStatus getValue(int& value) const;
    KdErrorStatus getValue(KdString& value) const;
    KdErrorStatus getValue(KdGePoint3d& value) const;

    bool operator==(const KdDbEvalVariant&) const = default;

  private:
    std::variant<std::monostate, int, double, KdString, KdGePoint3d> m_value;
    short m_restype = RTNONE;
};
