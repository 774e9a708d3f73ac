#include "made_drawing.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>

#include <unistd.h>

namespace {

// Written apart from the reader's own table, from the description of the format.
enum class Stored
{
    Text,
    Real,
    Byte,
    Short,
    Int,
    Long,
    Chunk
};

Stored storedForm(int code)
{
    const auto in = [code](int first, int last) { return code >= first && code <= last; };
    if (in(10, 59) || in(110, 149) || in(210, 239) || in(460, 469) || in(1010, 1059))
        return Stored::Real;
    if (in(60, 79) || in(170, 179) || in(270, 289) || in(370, 389) || in(400, 409) ||
        in(1060, 1070))
        return Stored::Short;
    if (in(90, 99) || in(420, 429) || in(440, 459) || code == 1071)
        return Stored::Int;
    if (in(160, 169))
        return Stored::Long;
    if (in(290, 299))
        return Stored::Byte;
    return in(310, 319) || code == 1004 ? Stored::Chunk : Stored::Text;
}

template <class T>
void put(std::string& bytes, T value)
{
    char raw[sizeof value];
    std::memcpy(raw, &value, sizeof value);
    bytes.append(raw, sizeof value);
}

void putChunk(std::string& bytes, const std::string& hex)
{
    put(bytes, static_cast<std::uint8_t>(hex.size() / 2));
    for (std::size_t i = 0; i + 1 < hex.size(); i += 2)
        put(bytes, static_cast<std::uint8_t>(std::stoi(hex.substr(i, 2), nullptr, 16)));
}

void putValue(std::string& bytes, int code, const std::string& value)
{
    switch (storedForm(code)) {
    case Stored::Real:
        put(bytes, std::stod(value));
        break;
    case Stored::Byte:
        put(bytes, static_cast<std::uint8_t>(std::stoi(value)));
        break;
    case Stored::Short:
        put(bytes, static_cast<std::int16_t>(std::stoi(value)));
        break;
    case Stored::Int:
        put(bytes, static_cast<std::int32_t>(std::stol(value)));
        break;
    case Stored::Long:
        put(bytes, static_cast<std::int64_t>(std::stoll(value)));
        break;
    case Stored::Chunk:
        putChunk(bytes, value);
        break;
    case Stored::Text:
        bytes.append(value).push_back('\0');
        break;
    }
}

} // namespace

std::string asText(const Groups& groups, const std::string& lineEnd)
{
    std::string text;
    for (const auto& [code, value] : groups)
        text.append(std::to_string(code)).append(lineEnd).append(value).append(lineEnd);
    return text;
}

std::string asBinary(const Groups& groups, bool narrowCodes)
{
    constexpr unsigned char kSentinel[] = {0x41, 0x75, 0x74, 0x6F, 0x43, 0x41, 0x44, 0x20,
                                           0x42, 0x69, 0x6E, 0x61, 0x72, 0x79, 0x20, 0x44,
                                           0x58, 0x46, 0x0D, 0x0A, 0x1A, 0x00};
    std::string bytes(std::begin(kSentinel), std::end(kSentinel));
    for (const auto& [code, value] : groups) {
        if (narrowCodes && code < 255) {
            put(bytes, static_cast<std::uint8_t>(code));
        } else {
            if (narrowCodes)
                put(bytes, std::uint8_t{0xFF});
            put(bytes, static_cast<std::int16_t>(code));
        }
        putValue(bytes, code, value);
    }
    return bytes;
}

Groups section(const std::string& name, const Groups& content)
{
    Groups groups{{0, "SECTION"}, {2, name}};
    groups.insert(groups.end(), content.begin(), content.end());
    groups.push_back({0, "ENDSEC"});
    return groups;
}

Groups drawing(const std::vector<Groups>& parts)
{
    Groups groups;
    for (const Groups& part : parts)
        groups.insert(groups.end(), part.begin(), part.end());
    groups.push_back({0, "EOF"});
    return groups;
}

Groups header(const std::string& version, const std::string& codePage)
{
    Groups variables{{9, "$ACADVER"}, {1, version}};
    if (!codePage.empty()) {
        variables.push_back({9, "$DWGCODEPAGE"});
        variables.push_back({3, codePage});
    }
    return section("HEADER", variables);
}

TemporaryFile::TemporaryFile(const std::string& content)
{
    std::string name = (std::filesystem::temp_directory_path() / "drawing-XXXXXX").string();
    const int descriptor = mkstemp(name.data());
    if (descriptor >= 0)
        close(descriptor);
    m_path = name;
    std::ofstream(m_path, std::ios::binary) << content;
}

TemporaryFile::~TemporaryFile()
{
    std::error_code ignored;
    std::filesystem::remove(m_path, ignored);
}

std::vector<const KdDbEntity*> ReadDrawing::entities(const wchar_t* block) const
{
    std::vector<const KdDbEntity*> all;
    const auto* owner = record<KdDbBlockTable>(block);
    if (!owner)
        return all;
    for (const KdDbObjectId id : owner->entityIds()) {
        KdDbEntity* entity = nullptr;
        if (kddbOpenObject(entity, id) == eOk) {
            entity->close();
            all.push_back(entity);
        }
    }
    return all;
}

const KdDbObject* ReadDrawing::object(KdDbHandle handle) const
{
    KdDbObjectId id;
    KdDbObject* found = nullptr;
    if (database->getObjectId(id, handle) == eOk && kddbOpenObject(found, id) == eOk)
        found->close();
    return found;
}

bool ReadDrawing::hasFinding(DrawingFinding kind) const
{
    return lineOf(kind) != 0;
}

std::uint64_t ReadDrawing::lineOf(DrawingFinding kind) const
{
    const auto found =
        std::find_if(report.findings.begin(), report.findings.end(),
                     [=](const ReadFinding& f) { return f.number == static_cast<int>(kind); });
    return found == report.findings.end() ? 0 : std::max<std::uint64_t>(found->line, 1);
}

ReadDrawing readBytes(const std::string& content, const ReadOptions& options)
{
    const TemporaryFile file(content);
    ReadDrawing result;
    result.status = readDrawing(file.path(), result.database, result.report, options);
    return result;
}

ReadDrawing readGroups(const Groups& groups, const ReadOptions& options)
{
    return readBytes(asText(groups), options);
}

ReadDrawing readGroupsWhole(const Groups& groups)
{
    ReadOptions options;
    options.readAllMembers = true;
    return readGroups(groups, options);
}
