/// Values of parameters and variables, of which the kind is known only at run time.
#pragma once

#include <cstdint>
#include <utility>
#include <variant>

#include <geometry/point.h>
#include <runtime/kd_string.h>
#include <runtime/status.h>

/// Nothing, a real, an integer, a text, or a point. Lengths are in drawing units.
class KdDbEvalVariant
{
  public:
    KdDbEvalVariant() = default;
    KdDbEvalVariant(double value) : m_value(value) {}
    KdDbEvalVariant(std::int32_t value) : m_value(value) {}
    KdDbEvalVariant(KdString value) : m_value(std::move(value)) {}
    KdDbEvalVariant(const KdGePoint3d& value) : m_value(value) {}

    bool isEmpty() const { return m_value.index() == 0; }

    /// The value in the kind of the argument; `eNotApplicable`, the argument untouched, if it is of
    /// another kind. Integers serve as reals, too.
    KdErrorStatus getValue(double& value) const
    {
        if (const auto* integer = std::get_if<std::int32_t>(&m_value)) {
            value = *integer;
            return eOk;
        }
        return copyTo(value);
    }
    KdErrorStatus getValue(std::int32_t& value) const { return copyTo(value); }
    KdErrorStatus getValue(KdString& value) const { return copyTo(value); }
    KdErrorStatus getValue(KdGePoint3d& value) const { return copyTo(value); }

    bool operator==(const KdDbEvalVariant&) const = default;

  private:
    template <class T>
    KdErrorStatus copyTo(T& value) const
    {
        const T* held = std::get_if<T>(&m_value);
        if (!held)
            return eNotApplicable;
        value = *held;
        return eOk;
    }

    std::variant<std::monostate, double, std::int32_t, KdString, KdGePoint3d> m_value;
};
