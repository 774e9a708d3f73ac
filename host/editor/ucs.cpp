#include <editor/ucs.h>

#include <editor/system_variables.h>

namespace {

bool readTriple(const wchar_t* name, KdGeVector3d& triple)
{
    resbuf variable{};
    if (kdedGetVar(name, &variable) != RTNORM)
        return false;
    const double* value = variable.resval.rpoint;
    triple = {value[0], value[1], value[2]};
    return true;
}

} // namespace

KdErrorStatus kddbWcs2Ucs(const KdGePoint3d& world, KdGePoint3d& user, bool vector)
{
    KdGeVector3d origin;
    KdGeVector3d xAxis;
    KdGeVector3d yAxis;
    if (!readTriple(L"UCSORG", origin) || !readTriple(L"UCSXDIR", xAxis) ||
        !readTriple(L"UCSYDIR", yAxis))
        return eNotInDatabase;
    const KdGeVector3d offset = vector ? world.asVector() : world.asVector() + -origin;
    user = {offset.dotProduct(xAxis), offset.dotProduct(yAxis),
            offset.dotProduct(xAxis.crossProduct(yAxis))};
    return eOk;
}
