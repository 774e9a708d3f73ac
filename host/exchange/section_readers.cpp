// Sections and what knows them.
#include <entities/section.h>

#include "member_fields.h"
#include "member_readers.h"

namespace dxf {
namespace {

// clang-format off
constexpr FieldRow<SectionMembers> kSectionFields[] = {
    {1, field<&SectionMembers::name>},
    {10, field<&SectionMembers::verticalDirection>},
    {11, [](RecordReader& reader, SectionMembers& section) { section.vertices.push_back(reader.point()); }},
    {40, field<&SectionMembers::topPlane>},
    {41, field<&SectionMembers::bottomPlane>},
    {90, field<&SectionMembers::state>},
};
constexpr FieldRow<SectionManagerMembers> kManagerFields[] = {
    {70, field<&SectionManagerMembers::live>},
    {330, [](RecordReader& reader, SectionManagerMembers& manager) { manager.sections.push_back(reader.reference()); }},
};
// clang-format on

/// What came late stands in extended data, the flag before another number: sections that are plain
/// planes have 0 first.
void takeSlice(const KdDbObject& object, SectionMembers& section)
{
    constexpr short kInteger = 1070;
    constexpr short kReal = 1040;
    const resbuf* end = nullptr;
    const resbuf* flag = object.extendedData(L"IsSlice", end);
    if (flag && flag->restype == kInteger)
        section.slice = flag->resval.rint != 0;
    const resbuf* depth = object.extendedData(L"ThicknessDepth", end);
    if (depth && depth->restype == kReal)
        section.thicknessDepth = depth->resval.rreal;
}

void readSection(RecordReader& reader, SectionMembers& section)
{
    while (reader.next())
        takeField(kSectionFields, reader, section);
    takeSlice(reader.object(), section);
}

void readManager(RecordReader& reader, SectionManagerMembers& manager)
{
    while (reader.next()) {
        if (reader.isIn("AcDbSectionManager"))
            takeField(kManagerFields, reader, manager);
    }
}

constexpr MemberReaderRow kRows[] = {
    memberReader<KdDbSection, SectionMembers, readSection>(),
    memberReader<KdDbSectionManager, SectionManagerMembers, readManager>(),
};

} // namespace

std::span<const MemberReaderRow> sectionReaders()
{
    return kRows;
}

} // namespace dxf
