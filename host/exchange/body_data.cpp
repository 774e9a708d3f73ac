#include "body_data.h"

#include "drawing_source.h"
#include "group_values.h"

namespace dxf {
namespace {

constexpr std::string_view kBodyPart = "ASM_Data";

/// The letter that stands for itself or, behind a caret, for a control character.
char letterAt(std::string_view text, std::size_t& at)
{
    constexpr char kControl = 0x40;
    const char c = text[at];
    if (c != '^' || at + 1 >= text.size())
        return c;
    ++at;
    return text[at] == ' ' ? '^' : static_cast<char>(text[at] ^ kControl);
}

/// Bodies are masked: letters are counted from the other end.
char unmasked(char c)
{
    constexpr int kSum = 159;
    return c > ' ' && c <= '~' ? static_cast<char>(kSum - c) : c;
}

/// Some writers leave the text as it is; the first line begins with a digit, which masked is a
/// letter.
bool isMasked(std::string_view text)
{
    const std::string_view start = trimmed(text.substr(0, text.find('\n')));
    return start.empty() || start.front() < '0' || start.front() > '9';
}

void appendLetters(std::string_view text, std::string& result)
{
    for (std::size_t i = 0; i < text.size(); ++i)
        result.push_back(letterAt(text, i));
}

bool isBodyGroup(const Group& group, std::string_view subclass)
{
    return (group.code == 1 || group.code == 3) &&
           (subclass.empty() || subclass == "AcDbModelerGeometry");
}

} // namespace

std::string textOfBody(DrawingSource& source, SourceRange range)
{
    constexpr int kFirstOfExtendedData = 1000;
    std::string text;
    std::string_view subclass;
    GroupStream groups = source.groups(range);
    Group group;
    while (groups.next(group) && group.code < kFirstOfExtendedData) {
        if (group.code == 100) {
            subclass = trimmed(group.text);
        } else if (isBodyGroup(group, subclass)) {
            if (group.code == 1 && !text.empty()) // the other code goes on with a line
                text.push_back('\n');
            appendLetters(group.text, text);
        }
    }
    if (isMasked(text)) {
        for (char& c : text)
            c = unmasked(c);
    }
    return text;
}

void BodyDataIndex::build(DrawingSource& source)
{
    GroupStream groups(source.form, m_begin, source.form.bytes.size(), nullptr);
    Group group;
    std::uint64_t record = m_begin;
    KdDbHandle entity = 0;
    while (groups.next(group)) {
        if (group.code == 0) {
            record = group.offset;
            entity = 0;
            const std::string_view name = trimmed(group.text);
            if (name == "ENDSEC" || name == "SECTION" || name == "EOF")
                break;
        } else if (group.code == 320) {
            entity = looseHandleOf(group);
        } else if (group.code == 2 && entity != 0 && trimmed(group.text) == kBodyPart) {
            m_records[entity] = record;
        }
    }
    m_begin = 0;
}

std::string BodyDataIndex::find(DrawingSource& source, KdDbHandle entity)
{
    if (m_begin != 0)
        build(source);
    std::string body;
    const auto record = m_records.find(entity);
    if (record == m_records.end())
        return body;
    GroupStream groups(source.form, record->second, source.form.bytes.size(), nullptr);
    Group group;
    bool isBody = false;
    groups.next(group); // the record's name
    while (groups.next(group) && group.code != 0) {
        if (group.code == 2)
            isBody = trimmed(group.text) == kBodyPart;
        else if (group.code == 310 && isBody)
            body += chunkOf(group);
    }
    return body;
}

} // namespace dxf
