#include <database/eval_variant.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

template <class Kind, class Held>
KdErrorStatus take(const Held& held, Kind& value)
{
    const Kind* const found = std::get_if<Kind>(&held);
    if (!found)
        return eNotApplicable;
    value = *found;
    return eOk;
}

} // namespace

KdErrorStatus KdDbEvalVariant::getValue(double& value) const
{
    int whole = 0;
    if (take(m_value, whole) != eOk)
        return take(m_value, value);
    value = whole;
    return eOk;
}

KdErrorStatus KdDbEvalVariant::getValue(int& value) const
{
    double real = 0.0;
    if (take(m_value, real) != eOk)
        return take(m_value, value);
    if (std::isnan(real))
        return eNotApplicable;
    using Limits = std::numeric_limits<int>;
    value = static_cast<int>(std::clamp<double>(real, Limits::min(), Limits::max()));
    return eOk;
}

KdErrorStatus KdDbEvalVariant::getValue(KdString& value) const
{
    return take(m_value, value);
}

KdErrorStatus KdDbEvalVariant::getValue(KdGePoint3d& value) const
{
    return take(m_value, value);
}
