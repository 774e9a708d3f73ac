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

KdString areaText(double area)
{
    constexpr int kOfTheDrawing = -1;
    CStdStr<wchar_t> text;
    realAreaToString(area, kOfTheDrawing, kOfTheDrawing, text);
    return KdString(text.c_str());
}

KdString curveAreaText(const KdDbCurve& curve)
{
    double area = 0.0;
    curve.getArea(area);
    return areaText(area);
}
