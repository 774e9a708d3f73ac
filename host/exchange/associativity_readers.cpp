// Actions, dependencies and variables, as far as dimensions and constraints ask about them.
#include <database/associativity.h>

#include "member_readers.h"
#include "value_parameter_reader.h"

namespace dxf {
namespace {

constexpr std::string_view kActionPart = "AcDbAssocAction";

/// In the general part of an action the first two handles are its network and its body.
void takeAction(RecordReader& reader, AssocActionMembers& action, int& handles)
{
    if (reader.code() != 330 && reader.code() != 360)
        return;
    const KdDbObjectId id = reader.reference();
    switch (handles++) {
    case 0:
        action.network = id;
        break;
    case 1:
        action.body = id;
        break;
    default:
        if (!id.isNull())
            action.dependencies.push_back(id);
    }
}

/// Calls `takeMore` for each group behind the general part.
template <class Members, class TakeMore>
void readActionAnd(RecordReader& reader, Members& action, TakeMore takeMore)
{
    ValueParameterReader values(action.values);
    int handles = 0;
    while (reader.next()) {
        if (!reader.isIn(kActionPart)) {
            takeMore();
        } else {
            takeAction(reader, action, handles);
            values.take(reader);
        }
    }
}

void readAction(RecordReader& reader, AssocActionMembers& action)
{
    readActionAnd(reader, action, [] {});
}

void readNetwork(RecordReader& reader, AssocNetworkMembers& network)
{
    readActionAnd(reader, network, [&] {
        if (reader.code() != 330 && reader.code() != 360)
            return;
        if (const KdDbObjectId id = reader.reference(); !id.isNull())
            network.actions.push_back(id);
    });
}

/// A group has no marker of its own. The handles of dimensional constraints come in pairs.
void readConstraintGroup(RecordReader& reader, AssocConstraintGroupMembers& group)
{
    int handles = 0;
    bool hasFirst = false;
    while (reader.next()) {
        if (reader.code() != 340) {
            takeAction(reader, group, handles);
        } else if (hasFirst) {
            group.measures.back().dimensionDependency = reader.reference();
            hasFirst = false;
        } else {
            group.measures.push_back({reader.reference(), {}});
            hasFirst = true;
        }
    }
}

/// The texts come in a fixed order; the first number behind them is the value.
void readVariable(RecordReader& reader, AssocVariableMembers& variable)
{
    KdString* const texts[] = {&variable.name, &variable.expression, &variable.evaluator,
                               &variable.description};
    std::size_t textsRead = 0;
    readActionAnd(reader, variable, [&] {
        if (reader.code() == 1 && textsRead < std::size(texts))
            *texts[textsRead++] = reader.text();
        else if (textsRead < std::size(texts) || !variable.value.isEmpty())
            return;
        else if (reader.code() == 40)
            variable.value = reader.real();
        else if (reader.code() == 1)
            variable.value = reader.text();
        else if (reader.code() == 90 || reader.code() == 70)
            variable.value = std::int32_t{reader.integer()};
    });
}

void readDependency(RecordReader& reader, AssocDependencyMembers& dependency)
{
    int flags = 0;
    bool hasObject = false;
    while (reader.next()) {
        if (!reader.isIn("AcDbAssocDependency"))
            continue;
        if (reader.code() == 290) {
            if (flags == 0)
                dependency.reads = reader.flag();
            else if (flags == 1)
                dependency.writes = reader.flag();
            ++flags;
        } else if (reader.code() == 330 && !hasObject) {
            dependency.dependentOn = reader.reference();
            hasObject = true;
        } else if (reader.code() == 360) {
            dependency.body = reader.reference();
        }
    }
}

void readDimBody(RecordReader& reader, AssocDimDependencyBodyMembers& body)
{
    while (reader.next())
        if (reader.code() == 1 && body.text.isEmpty())
            body.text = reader.text();
}

void readDimAssoc(RecordReader& reader, DimAssocMembers& association)
{
    bool hasDimension = false;
    while (reader.next()) {
        if (!reader.isIn("AcDbDimAssoc"))
            continue;
        if (reader.code() == 330 && !hasDimension) {
            association.dimension = reader.reference();
            hasDimension = true;
        } else if (reader.code() == 90) {
            association.points = reader.integer();
        }
    }
}

constexpr MemberReaderRow kRows[] = {
    memberReader<KdDbAssocAction, AssocActionMembers, readAction>(),
    memberReader<KdDbAssocNetwork, AssocNetworkMembers, readNetwork>(),
    memberReader<KdDbAssoc2dConstraintGroup, AssocConstraintGroupMembers, readConstraintGroup>(),
    memberReader<KdDbAssocVariable, AssocVariableMembers, readVariable>(),
    memberReader<KdDbAssocDependency, AssocDependencyMembers, readDependency>(),
    memberReader<KdDbAssocDimDependencyBodyBase, AssocDimDependencyBodyMembers, readDimBody>(),
    memberReader<KdDbDimAssoc, DimAssocMembers, readDimAssoc>(),
};

} // namespace

std::span<const MemberReaderRow> associativityReaders()
{
    return kRows;
}

} // namespace dxf
