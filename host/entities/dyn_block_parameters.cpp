#include <entities/dyn_block_parameters.h>

#include <algorithm>
#include <cmath>

#include <entities/dyn_block_actions.h>

#define KW_BLOCK_PARAMETER_GROUP(Name, Parent)                                                     \
    KD_RX_DEFINE_ABSTRACT(KdDbBlock##Name, KdDbBlock##Parent, L"AcDbBlock" #Name)
#define KW_BLOCK_PARAMETER(Kind, Parent, dxfName)                                                  \
    KD_RX_DEFINE(KdDbBlock##Kind##Parameter, KdDbBlock##Parent, L"AcDbBlock" #Kind "Parameter",    \
                 dxfName)

// clang-format off
KW_BLOCK_PARAMETER_GROUP(Parameter, Element)
KW_BLOCK_PARAMETER_GROUP(1PtParameter, Parameter)
KW_BLOCK_PARAMETER_GROUP(2PtParameter, Parameter)
KW_BLOCK_PARAMETER_GROUP(ConstraintParameter, 2PtParameter)
KW_BLOCK_PARAMETER(Basepoint, 1PtParameter, L"BLOCKBASEPOINTPARAMETER")
KW_BLOCK_PARAMETER(Point, 1PtParameter, L"BLOCKPOINTPARAMETER")
KW_BLOCK_PARAMETER(Lookup, 1PtParameter, L"BLOCKLOOKUPPARAMETER")
KW_BLOCK_PARAMETER(Visibility, 1PtParameter, L"BLOCKVISIBILITYPARAMETER")
KW_BLOCK_PARAMETER(Alignment, 2PtParameter, L"BLOCKALIGNMENTPARAMETER")
KW_BLOCK_PARAMETER(Flip, 2PtParameter, L"BLOCKFLIPPARAMETER")
KW_BLOCK_PARAMETER(Linear, 2PtParameter, L"BLOCKLINEARPARAMETER")
KW_BLOCK_PARAMETER(Polar, 2PtParameter, L"BLOCKPOLARPARAMETER")
KW_BLOCK_PARAMETER(Rotation, 2PtParameter, L"BLOCKROTATIONPARAMETER")
KW_BLOCK_PARAMETER(XY, 2PtParameter, L"BLOCKXYPARAMETER")
KW_BLOCK_PARAMETER(User, Parameter, L"") // a file's own stay unread, since their groups are not known
KW_BLOCK_PARAMETER(AngularConstraint, ConstraintParameter, L"BLOCKANGULARCONSTRAINTPARAMETER")
KW_BLOCK_PARAMETER(DiametricConstraint, ConstraintParameter, L"BLOCKDIAMETRICCONSTRAINTPARAMETER")
KW_BLOCK_PARAMETER(LinearConstraint, ConstraintParameter, L"BLOCKLINEARCONSTRAINTPARAMETER")
KW_BLOCK_PARAMETER(AlignedConstraint, LinearConstraintParameter, L"BLOCKALIGNEDCONSTRAINTPARAMETER")
KW_BLOCK_PARAMETER(HorizontalConstraint, LinearConstraintParameter, L"BLOCKHORIZONTALCONSTRAINTPARAMETER")
KW_BLOCK_PARAMETER(VerticalConstraint, LinearConstraintParameter, L"BLOCKVERTICALCONSTRAINTPARAMETER")
KW_BLOCK_PARAMETER(RadialConstraint, ConstraintParameter, L"BLOCKRADIALCONSTRAINTPARAMETER")
// clang-format on

namespace {

double angleBetween(const KdGeVector3d& from, const KdGeVector3d& to)
{
    return from.angleTo(to, KdGeVector3d::kZAxis);
}

} // namespace

int KdDbBlockParameter::numberOfGrips() const
{
    return static_cast<int>(std::ranges::count_if(gripNodes(), [](int node) { return node != 0; }));
}

KdDbObjectId KdDbBlockLookupParameter::actionId() const
{
    const OpenForRead<KdDbEvalGraph> graph(KdDbEvalGraph::ofElement(*this));
    const KdDbObjectId action = graph ? graph->elementOf(data().actionNode) : KdDbObjectId();
    return action.isKindOf(KdDbBlockLookupAction::desc()) ? action : KdDbObjectId();
}

KdString KdDbBlockLookupParameter::actionName() const
{
    const OpenForRead<KdDbBlockLookupAction> action(actionId());
    return action ? action->elementName() : KdString();
}

double KdDbBlock2PtParameter::angle() const
{
    return angleBetween(KdGeVector3d::kXAxis, data().end - data().start);
}

double KdDbBlockXYParameter::horizontalDistance() const
{
    return std::abs(data().end.x - data().start.x);
}

double KdDbBlockXYParameter::verticalDistance() const
{
    return std::abs(data().end.y - data().start.y);
}

double KdDbBlockRotationParameter::baseAngle() const
{
    return angleBetween(KdGeVector3d::kXAxis, data().baseAnglePoint - data().start);
}

double KdDbBlockRotationParameter::rotation() const
{
    return angleBetween(data().baseAnglePoint - data().start, data().end - data().start);
}
