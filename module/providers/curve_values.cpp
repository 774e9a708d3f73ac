#include <providers/curve_values.h>

#include <values/real_text.h>

// The status of the curve's operations is not asked for: where they give nothing, the neutral value
// stands.

KdGePoint3d startPointOf(const KdDbCurve& curve)
{
    KdGePoint3d point;
    curve.getStartPoint(point);
    return point;
}

KdGePoint3d endPointOf(const KdDbCurve& curve)
{
    KdGePoint3d point;
    curve.getEndPoint(point);
    return point;
}

double parameterSpan(const KdDbCurve& curve)
{
    double start = 0.0;
    double end = 0.0;
    curve.getStartParam(start);
    curve.getEndParam(end);
    return end - start;
}

double curveLength(const KdDbCurve& curve)
{
    double end = 0.0;
    curve.getEndParam(end);
    double length = 0.0;
    curve.getDistAtParam(end, length);
    return length;
}

double curveArea(const KdDbCurve& curve)
{
    double area = 0.0;
    KdDbCurveArea(&curve).getArea(area);
    return area;
}

KdString areaText(double area, const wchar_t* otherwise)
{
    constexpr int kOfTheDrawing = -1;
    CStdStr<wchar_t> text(otherwise);
    realAreaToString(area, kOfTheDrawing, kOfTheDrawing, text);
    return KdString(text.c_str());
}

KdString curveAreaText(const KdDbCurve& curve)
{
    return areaText(curveArea(curve));
}
