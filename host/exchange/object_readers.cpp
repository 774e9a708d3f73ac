// Dictionaries and layouts.
#include <database/dictionary.h>
#include <database/layout.h>

#include "member_readers.h"

namespace dxf {
namespace {

void readDictionary(RecordReader& reader, DictionaryMembers& dictionary)
{
    KdString name;
    while (reader.next()) {
        switch (reader.code()) {
        case 3:
            name = reader.text();
            break;
        case 350:
        case 360:
            if (const KdDbObjectId id = reader.reference(); !id.isNull())
                dictionary.entries.push_back({name, id});
            break;
        case 340:
            dictionary.defaultId = reader.reference();
            break;
        default:
            break;
        }
    }
}

void readLayout(RecordReader& reader, LayoutMembers& layout)
{
    while (reader.next()) {
        if (!reader.isIn("AcDbLayout")) // plot settings come first and have a name, too
            continue;
        switch (reader.code()) {
        case 1:
            layout.name = reader.text();
            break;
        case 71:
            layout.tabOrder = reader.integer();
            break;
        case 330:
            layout.block = reader.reference();
            break;
        case 331:
            layout.lastActiveViewport = reader.handle();
            break;
        default:
            break;
        }
    }
}

constexpr MemberReaderRow kRows[] = {
    memberReader<KdDbDictionary, DictionaryMembers, readDictionary>(),
    memberReader<KdDbLayout, LayoutMembers, readLayout>(),
};

} // namespace

std::span<const MemberReaderRow> objectReaders()
{
    return kRows;
}

} // namespace dxf
