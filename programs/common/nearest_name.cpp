#include <common/nearest_name.h>

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>

#include <common/catalog.h>
#include <runtime/utf8.h>

namespace {

/// How many characters are to be added, dropped or changed to make one text of the other.
std::size_t editDistance(const std::wstring& a, const std::wstring& b)
{
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], i);
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t changed = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({row[j] + 1, row[j - 1] + 1, changed});
        }
    }
    return row.back();
}

} // namespace

const std::wstring* nearestName(const std::wstring& wanted, const std::vector<std::wstring>& known)
{
    const std::wstring form = comparable(wanted);
    const std::wstring* nearest = nullptr;
    std::size_t fewest = form.size() / 2 + 1;
    for (const std::wstring& name : known) {
        const std::size_t changes = editDistance(comparable(name), form);
        if (changes < fewest) {
            nearest = &name;
            fewest = changes;
        }
    }
    return nearest;
}

std::string notFound(const std::string& what, const std::string& name,
                     const std::vector<std::wstring>& known, const std::string& noneKnown)
{
    const std::string sentence = "no " + what + " \"" + name + '"';
    if (known.empty())
        return sentence + noneKnown;
    const std::wstring* nearest = nearestName(kdFromUtf8(name), known);
    if (nearest)
        return sentence + "; did you mean " + inQuotes(*nearest) +
               "? There are: " + commaList(known);
    return sentence + "; there are: " + commaList(known);
}

std::string commaList(const std::vector<std::wstring>& names)
{
    std::string list;
    for (const std::wstring& name : names)
        list += (list.empty() ? "" : ", ") + kdToUtf8(name);
    return list;
}

std::string inQuotes(const std::wstring& name)
{
    return '"' + kdToUtf8(name) + '"';
}
