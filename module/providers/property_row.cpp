#include <providers/property_row.h>

#include <functional>

#include <platform/resources.h>

#include <values/resource_string.h>

namespace {

/// True if `equal` finds `other` to be the text. The library's own text serves as it lies; only a
/// missing one takes the loud way.
template <class Equal>
bool isText(const ResourceText& text, std::wstring_view other, Equal equal)
{
    const wchar_t* stored = nullptr;
    const int length = LoadStringW(AfxGetResourceHandle(), static_cast<unsigned>(text.id),
                                   reinterpret_cast<wchar_t*>(&stored), 0);
    if (length > 0)
        return equal(other, std::wstring_view(stored, static_cast<std::size_t>(length)));
    __ResourceString substitute(text.id, text.defaultText, nullptr);
    return equal(other, std::wstring_view(static_cast<const wchar_t*>(substitute)));
}

} // namespace

KdString ResourceText::text() const
{
    return KdString(static_cast<const wchar_t*>(__ResourceString(id, defaultText, nullptr)));
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
    for (const PropertyRow& row : rows) {
        if (row.key.matches(name))
            return &row;
    }
    return nullptr;
}

int answerRow(const PropertyRow& row, const PropertyRequest& request)
{
    return row.read(request, row.kind) && row.choices(request) ? 1 : 0;
}
