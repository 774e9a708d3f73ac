// The bodies of actions.
#include <entities/assoc_array.h>
#include <entities/center_object.h>

#include "member_readers.h"
#include "value_parameter_reader.h"

namespace dxf {
namespace {

/// Takes the groups that all bodies share.
class BodyReader
{
  public:
    explicit BodyReader(AssocActionBodyMembers& body) : m_body(body), m_values(body.values) {}

    bool take(RecordReader& reader)
    {
        if (!reader.isIn("AcDbAssocParamBasedActionBody"))
            return reader.isIn("AcDbAssocActionBody");
        if (reader.code() == 360)
            m_body.parameters.push_back(reader.reference());
        else
            m_values.take(reader);
        return true;
    }

  private:
    AssocActionBodyMembers& m_body;
    ValueParameterReader m_values;
};

void readBody(RecordReader& reader, AssocActionBodyMembers& body)
{
    BodyReader shared(body);
    while (reader.next())
        shared.take(reader);
}

std::unique_ptr<KdDbAssocArrayParameters> makeArray(const KdString& className)
{
    if (className == L"AcDbAssocArrayRectangularParameters")
        return std::make_unique<KdDbAssocArrayRectangularParameters>();
    if (className == L"AcDbAssocArrayPolarParameters")
        return std::make_unique<KdDbAssocArrayPolarParameters>();
    if (className == L"AcDbAssocArrayPathParameters")
        return std::make_unique<KdDbAssocArrayPathParameters>();
    return nullptr;
}

/// What an array keeps elsewhere: quantities in the body, or in newer drawings in the action, and
/// vertices as objects of their own.
void completeArray(const RecordReader& reader, AssocArrayActionBodyMembers& body)
{
    KdDbAssocArrayParameters& array = *body.array;
    for (const AssocValueParameter& value : body.values)
        array.setValueParam(value);
    const OpenForRead<KdDbAssocAction> action(reader.object().ownerId());
    for (const AssocValueParameter& value :
         action ? action->values() : std::vector<AssocValueParameter>())
        array.setValueParam(value);
    for (const KdDbObjectId id : body.parameters) {
        if (const OpenForRead<KdDbAssocVertexActionParam> vertex(id); vertex)
            array.setGeomParam(vertex->name().kwszPtr(),
                               std::make_shared<KdDbVertexRef>(vertex->point()), id);
    }
}

void readArrayBody(RecordReader& reader, AssocArrayActionBodyMembers& body)
{
    // A map of 16 numbers, row by row, carries the first item to its place.
    constexpr int kMapX = 3;
    constexpr int kMapY = 7;
    constexpr int kMapZ = 11;
    BodyReader shared(body);
    int number = 0;
    while (reader.next()) {
        if (shared.take(reader) || !reader.isIn("AcDbAssocArrayActionBody"))
            continue;
        if (reader.code() == 1 && !body.array) {
            body.array = makeArray(reader.text());
        } else if (reader.code() == 40) {
            const double value = reader.real();
            if (number == kMapX)
                body.sourceBasePoint.x = value;
            else if (number == kMapY)
                body.sourceBasePoint.y = value;
            else if (number == kMapZ)
                body.sourceBasePoint.z = value;
            ++number;
        }
    }
    if (body.array)
        completeArray(reader, body);
}

void readVertex(RecordReader& reader, AssocVertexActionParamMembers& vertex)
{
    while (reader.next()) {
        if (reader.isIn("AcDbAssocActionParam") && reader.code() == 1)
            vertex.name = reader.text();
        else if (reader.isIn("AcDbAssocVertexActionParam") && reader.code() == 10)
            vertex.point = reader.point();
    }
}

constexpr MemberReaderRow kRows[] = {
    memberReader<KdDbAssocActionBody, AssocActionBodyMembers, readBody>(),
    memberReader<KdDbAssocArrayActionBody, AssocArrayActionBodyMembers, readArrayBody>(),
    memberReader<KdDbAssocVertexActionParam, AssocVertexActionParamMembers, readVertex>(),
};

} // namespace

std::span<const MemberReaderRow> actionBodyReaders()
{
    return kRows;
}

} // namespace dxf
