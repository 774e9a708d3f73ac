#include <providers/property_row.h>

#include <array>
#include <cstdint>
#include <functional>
#include <string>

#include <platform/resources.h>

#include <providers/row_readers.h>
#include <values/resource_string.h>

namespace {

/// The library's own text; empty if it lacks the text.
std::wstring_view storedText(const ResourceText& text)
{
    const wchar_t* stored = nullptr;
    const int length = LoadStringW(AfxGetResourceHandle(), static_cast<unsigned>(text.id),
                                   reinterpret_cast<wchar_t*>(&stored), 0);
    return length > 0 ? std::wstring_view(stored, static_cast<std::size_t>(length))
                      : std::wstring_view();
}

/// True if `equal` finds `other` to be the text. The library's own text serves as it lies; only a
/// missing one takes the loud way.
template <class Equal>
bool isText(const ResourceText& text, std::wstring_view other, Equal equal)
{
    const std::wstring_view stored = storedText(text);
    if (!stored.empty())
        return equal(other, stored);
    __ResourceString substitute(text.id, text.defaultText, nullptr);
    return equal(other, std::wstring_view(static_cast<const wchar_t*>(substitute)));
}

/// The last search in one table. A run looks for one key with each of its entities.
class LastSearch
{
  public:
    bool isIn(std::span<const PropertyRow> rows) const
    {
        return m_rows.data() == rows.data() && m_rows.size() == rows.size();
    }
    bool isUnused() const { return m_rows.empty(); }
    /// Whether the outcome for this key is known.
    bool isFor(std::wstring_view key) const
    {
        return m_isKnown && m_library == AfxGetResourceHandle() && m_key == key;
    }
    void search(std::span<const PropertyRow> rows, std::wstring_view key)
    {
        m_rows = rows;
        m_library = AfxGetResourceHandle();
        m_key = key;
        m_found = nullptr;
        m_isKnown = true;
        for (const PropertyRow& row : rows) {
            // What the library lacks is told at each use.
            m_isKnown = m_isKnown && !storedText(row.key).empty();
            if (row.key.matches(key)) {
                m_found = &row;
                return;
            }
        }
    }
    const PropertyRow* found() const { return m_found; }

  private:
    std::span<const PropertyRow> m_rows;
    HINSTANCE m_library = nullptr;
    std::wstring m_key;
    const PropertyRow* m_found = nullptr;
    bool m_isKnown = false;
};

/// The last search in that table. There are fewer tables than places, so one hardly ever takes the
/// place of another.
LastSearch& lastSearchIn(std::span<const PropertyRow> rows)
{
    constexpr std::size_t kMostTries = 8;
    constexpr std::uint64_t kGoldenRatio = 0x9E3779B97F4A7C15u;
    static std::array<LastSearch, 512> searches;
    const auto first = static_cast<std::size_t>(
        reinterpret_cast<std::uintptr_t>(rows.data()) * kGoldenRatio >> 32);
    for (std::size_t i = 0; i < kMostTries; ++i) {
        LastSearch& search = searches[(first + i) % searches.size()];
        if (search.isIn(rows) || search.isUnused())
            return search;
    }
    searches[first % searches.size()] = {};
    return searches[first % searches.size()];
}

} // namespace

KdString ResourceText::text() const
{
    return KdString(static_cast<const wchar_t*>(__ResourceString(id, defaultText, nullptr)));
}

bool ResourceText::isThere() const
{
    return !storedText(*this).empty();
}

bool ResourceText::matches(std::wstring_view other) const
{
    return isText(*this, other, std::equal_to<>());
}

bool ResourceText::matchesNoCase(const KdString& other) const
{
    return isText(*this, other, KdNameEqual());
}

void listRows(std::span<const PropertyRow> rows, const KdDbEntity* entity, KdArray<KdString>& names,
              KdArray<bool>& flags)
{
    for (const PropertyRow& row : rows) {
        if (row.listed(entity)) {
            names.append(row.key.text());
            flags.append(row.readOnly(entity));
        }
    }
}

const PropertyRow* findRow(std::span<const PropertyRow> rows, const KdString& name)
{
    if (rows.empty())
        return nullptr;
    LastSearch& last = lastSearchIn(rows);
    if (!last.isFor(name))
        last.search(rows, name);
    return last.found();
}

LastingRow findLastingRow(std::span<const PropertyRow> rows, const KdString& name)
{
    for (const PropertyRow& row : rows) {
        if (!row.key.isThere())
            return std::nullopt;
        if (row.key.matches(name))
            return row.read == answeredByTheProvider ? LastingRow() : &row;
    }
    return nullptr;
}

int answerRow(const PropertyRow& row, const PropertyRequest& request)
{
    return row.read(request, row.kind) && row.choices(request) ? 1 : 0;
}
