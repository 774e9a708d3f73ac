#include "text_columns.h"

#include <algorithm>

#include <entities/mtext.h>

#include "group_values.h"

namespace dxf {
namespace {

constexpr std::string_view kBegin = "ACAD_MTEXT_COLUMNS_BEGIN";
constexpr std::string_view kEnd = "ACAD_MTEXT_COLUMNS_END";
constexpr int kName = 1000;
constexpr int kHandle = 1005;

} // namespace

bool ColumnNames::take(const Group& group)
{
    if (group.code == kName)
        m_isInside = (m_isInside || trimmed(group.text) == kBegin) && trimmed(group.text) != kEnd;
    return m_isInside && group.code == kHandle;
}

void TextColumns::note(KdDbObject& text, SourceRange range)
{
    // Most texts have none, and looking for the name is faster than reading the groups.
    const std::string_view record = m_source.form.bytes.substr(range.offset, range.length);
    if (record.find(kBegin) == std::string_view::npos)
        return;
    Named named{&text, {}};
    GroupStream groups = m_source.groups(range);
    ColumnNames names;
    Group group;
    while (groups.next(group)) {
        if (names.take(group))
            named.columns.push_back(looseHandleOf(group));
    }
    if (!named.columns.empty())
        m_named.push_back(std::move(named));
}

bool TextColumns::isFirst(const KdDbObject& text) const
{
    const auto found = std::ranges::lower_bound(m_named, &text, std::less<>(), &Named::text);
    return found != m_named.end() && found->text == &text;
}

bool TextColumns::tie(KdDbObject& text, KdDbHandle handle)
{
    KdDbObjectId id;
    KdDbMText* column = nullptr;
    if (handle == 0 || m_source.database.getObjectId(id, handle) != eOk ||
        kddbOpenObject(column, id, KdDb::kForWrite) != eOk)
        return false;
    const bool isColumn = column->ownerId() == text.ownerId() && !isFirst(*column);
    if (isColumn) {
        m_maker.builder().setOwner(*column, text.objectId());
        column->erase();
        m_source.textColumns[text.objectId()].push_back(id);
    }
    column->close();
    return isColumn;
}

std::size_t TextColumns::tie()
{
    std::vector<Named> inOrder = m_named;
    std::ranges::sort(m_named, std::less<>(), &Named::text);
    std::size_t tied = 0;
    for (const Named& named : inOrder) {
        for (const KdDbHandle column : named.columns)
            tied += tie(*named.text, column) ? 1 : 0;
    }
    return tied;
}

} // namespace dxf
