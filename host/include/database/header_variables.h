/// The settings that a drawing keeps in its header.
#pragma once

#include <cassert>
#include <cstdint>
#include <span>
#include <string_view>
#include <variant>
#include <vector>

#include <geometry/point.h>
#include <runtime/kd_string.h>

/// Integers and switches as `std::int32_t`, lengths and angles as `double` (angles in radians),
/// texts and names as `KdString`, handles as texts, points as `KdGePoint3d`.
using KdDbHeaderValue = std::variant<std::int32_t, double, KdString, KdGePoint3d>;

/// A variable that every drawing has. `group` is the group code of its value in DXF.
struct KdDbHeaderVariable
{
    const wchar_t* name; ///< without the dollar sign, upper case
    int group;
    KdDbHeaderValue initial;
};

/// The values of one drawing. Variables are numbered by their place in `all()`.
class KW_EXPORT KdDbHeaderVariables
{
  public:
    static std::span<const KdDbHeaderVariable> all();
    /// The number of a variable by its name, without case; -1 if there is none of that name.
    static int indexOf(std::wstring_view name);

    KdDbHeaderVariables();

    /// `index` must be one that `indexOf` gave for a name.
    const KdDbHeaderValue& value(int index) const
    {
        assert(index >= 0 && static_cast<std::size_t>(index) < m_values.size());
        return m_values[static_cast<std::size_t>(index)];
    }
    /// False, with nothing changed, if `value` is not of the variable's kind.
    bool setValue(int index, KdDbHeaderValue value);

    /// By name, for use off the hot paths. The name must exist and be of that kind.
    std::int32_t integer(std::wstring_view name) const;
    double real(std::wstring_view name) const;
    const KdString& text(std::wstring_view name) const;
    const KdGePoint3d& point(std::wstring_view name) const;

  private:
    std::vector<KdDbHeaderValue> m_values;
};
