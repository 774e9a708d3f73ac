#include <values/ucs_frame.h>

#include <editor/system_variables.h>
#include <runtime/status.h>

namespace {

KdGeVector3d tripleVariable(const wchar_t* name, const KdGeVector3d& initial)
{
    resbuf variable{};
    if (kdedGetVar(name, &variable) != RTNORM)
        return initial;
    const double* triple = variable.resval.rpoint;
    return {triple[0], triple[1], triple[2]};
}

} // namespace

KdGeMatrix3d UcsToWcsTransform()
{
    const KdGeVector3d origin = tripleVariable(L"UCSORG", {});
    const KdGeVector3d xAxis = tripleVariable(L"UCSXDIR", KdGeVector3d::kXAxis);
    const KdGeVector3d yAxis = tripleVariable(L"UCSYDIR", KdGeVector3d::kYAxis);
    return KdGeMatrix3d::fromFrame(KdGePoint3d::kOrigin + origin, xAxis, yAxis,
                                   xAxis.crossProduct(yAxis));
}

KdGeMatrix3d ucsToWcsTransf()
{
    return UcsToWcsTransform();
}
