#include <dimensions/dimension_values.h>

#include <database/associativity.h>
#include <database/database.h>
#include <database/tables.h>

#include <values/arrow_names.h>
#include <values/names.h>
#include <values/table_walk.h>
#include <values/value_lists.h>

namespace {

void chainLines(ResBuf& head, const std::vector<listUnit>& lines)
{
    ResBuf* tail = &head;
    for (const listUnit& line : lines)
        tail = PropListUtil::addElementToArray(tail, line.name);
}

void chainDimensionStyles(ResBuf& head)
{
    ResBuf* tail = &head;
    walkRecords<KdDbDimStyleTable>(kddbHostApplicationServices()->workingDatabase(),
                                   Dependents::Visit, [&](const KdDbDimStyleTableRecord& record) {
                                       tail = PropListUtil::addElementToArray(tail, record.name());
                                       return Walk::Continue;
                                   });
}

bool isForDisplayWithChoices(const PropertyRequest& request)
{
    return request.asDisplayText && request.withChoices;
}

} // namespace

KdString associativeText(const KdDbEntity& entity)
{
    return kddbIsAssociativeDimension(entity) ? L"Yes" : L"No";
}

KdString lineweightText(int weight)
{
    KdString name;
    getLineWeightName(weight, name);
    return name;
}

KdString arrowText(KdDbObjectId block)
{
    KdString name = KdDmUtil::arrowName(block);
    getArrowName(name);
    return name;
}

bool readDimensionStyle(const PropertyRequest& request, ValueKind kind, KdDbObjectId style)
{
    request.head.setRestype(kind);
    request.head.setString(nameOfRecord<KdDbDimStyleTableRecord>(style));
    if (request.withChoices)
        chainDimensionStyles(request.head);
    return !style.isNull();
}

bool readLinetype(const PropertyRequest& request, ValueKind kind, KdDbObjectId linetype)
{
    request.head.setRestype(request.asDisplayText ? ResBuf::kString : kind);
    KdString name;
    if (!linetype.isNull())
        name = nameOfRecord<KdDbLinetypeTableRecord>(linetype);
    else if (getDefaultLineTypeName(name) != eOk)
        return true;
    request.head.setString(name);
    return true;
}

void chainLineweights(ResBuf& head)
{
    PropListFiller lists;
    lists.fillLineWeight();
    chainLines(head, lists.lineWeights);
}

bool lineweightsForDisplay(const PropertyRequest& request)
{
    if (isForDisplayWithChoices(request))
        chainLineweights(request.head);
    return true;
}

bool linetypesForDisplay(const PropertyRequest& request)
{
    if (isForDisplayWithChoices(request)) {
        PropListFiller lists;
        lists.fillLineType();
        chainLines(request.head, lists.lineTypes);
    }
    return true;
}
