#include <entities/circle.h>

#include <providers/curve_providers.h>
#include <providers/curve_values.h>
#include <providers/row_readers.h>

namespace {

double arcLength(const KdDbArc& arc)
{
    return parameterSpan(arc) * arc.radius();
}

bool isTilted(const KdDbArc& arc)
{
    return !arc.normal().isEqualTo(KdGeVector3d::kZAxis, KdGeContext::gTol);
}

// clang-format off
constexpr PropertyRow kRows[] = {
    // key: id, default text            read-only  kind              value                        choices, listed
    {{76619, L"\tGeneral:Thickness"},   editable,  ResBuf::kReal,    value<&KdDbArc::thickness>},
    {{76620, L"Geometry:Start"},        derived,   ResBuf::kPoint3d, value<startPointOf>},
    {{76623, L"Geometry:Center"},       editable,  ResBuf::kPoint3d, value<&KdDbArc::center>},
    {{76626, L"Geometry:End"},          derived,   ResBuf::kPoint3d, value<endPointOf>},
    {{76629, L"Geometry:Radius"},       editable,  ResBuf::kReal,    value<&KdDbArc::radius>},
    {{76630, L"Geometry:Start angle"},  editable,  ResBuf::kAngle,   value<&KdDbArc::startAngle>},
    {{76631, L"Geometry:End angle"},    editable,  ResBuf::kAngle,   value<&KdDbArc::endAngle>},
    {{76632, L"Geometry:Total angle"},  derived,   ResBuf::kAngle,   value<parameterSpan>},
    {{76633, L"Geometry:Arc length"},   derived,   ResBuf::kReal,    value<arcLength>},
    {{76634, L"Geometry:Area"},         derived,   ResBuf::kString,  value<curveAreaText>},
    // not listed for most arcs, but answered for all: as intended
    {{76638, L"Geometry:Normal"},       derived,   ResBuf::kPoint3d, value<&KdDbArc::normal>,     noChoices, when<KdDbArc, isTilted>},
};
// clang-format on

} // namespace

std::span<const PropertyRow> KdDbArc_Extension::rows()
{
    return kRows;
}
