// Entities of kinds that are not known here.
#include <string>

#include <entities/proxy_entity.h>

#include "member_readers.h"

namespace dxf {
namespace {

constexpr std::string_view kProxyName = "ACAD_PROXY_ENTITY";

/// The name of a kind by its number; numbers begin behind those of the built-in kinds.
KdString nameOfClass(const DrawingSource& source, int number)
{
    constexpr int kFirst = 500;
    const bool exists =
        number >= kFirst && static_cast<std::size_t>(number - kFirst) < source.classes.size();
    return exists ? source.classes[static_cast<std::size_t>(number - kFirst)].dxfName : KdString();
}

void readProxy(RecordReader& reader, ProxyEntityMembers& proxy)
{
    if (reader.recordName() != kProxyName) {
        proxy.originalDxfName = reader.source().decoder.decode(reader.recordName());
        reader.skipRest();
        return;
    }
    while (reader.next()) {
        if (reader.code() == 91)
            proxy.originalDxfName = nameOfClass(reader.source(), reader.integer());
    }
}

constexpr MemberReaderRow kRows[] = {
    memberReader<KdDbProxyEntity, ProxyEntityMembers, readProxy>(),
};

} // namespace

std::span<const MemberReaderRow> proxyReaders()
{
    return kRows;
}

} // namespace dxf
