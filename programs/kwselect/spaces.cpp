#include "spaces.h"

#include <algorithm>
#include <utility>

#include <common/catalog.h>
#include <common/nearest_name.h>
#include <database/database.h>
#include <editor/current_space.h>
#include <editor/system_variables.h>
#include <runtime/utf8.h>

namespace {

constexpr const wchar_t* kModel = L"Model";

/// The names of the sheets in the order of their tabs.
std::vector<std::wstring> sheetNames(KdDbDatabase& drawing)
{
    std::vector<std::pair<int, std::wstring>> sheets;
    const KdDbObjectId layouts =
        kddbDictionaryEntry(drawing.namedObjectsDictionaryId(), L"ACAD_LAYOUT");
    if (const OpenForRead<KdDbDictionary> dictionary(layouts); dictionary) {
        for (const auto& entry : dictionary->entries()) {
            const OpenForRead<KdDbLayout> layout(entry.id);
            if (layout && layout->getBlockTableRecordId() != drawing.modelSpaceId())
                sheets.push_back({layout->getTabOrder(), layout->getLayoutName().kwszPtr()});
        }
    }
    std::stable_sort(sheets.begin(), sheets.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<std::wstring> names;
    for (auto& [order, name] : sheets)
        names.push_back(std::move(name));
    return names;
}

SearchSpace sheet(const std::wstring& name)
{
    return {name, {}, "paper:" + kdToUtf8(name)};
}

bool findBlock(KdDbDatabase& drawing, const std::string& name, std::vector<SearchSpace>& spaces,
               std::string& problem)
{
    std::vector<std::wstring> names;
    for (const KdDbObjectId id : drawing.table<KdDbBlockTable>().recordIds()) {
        const OpenForRead<KdDbBlockTableRecord> block(id);
        if (!block || block->isLayout())
            continue;
        names.push_back(block->name().kwszPtr());
        if (comparable(names.back()) == comparable(kdFromUtf8(name))) {
            spaces = {{{}, id, "block:" + kdToUtf8(names.back())}};
            return true;
        }
    }
    std::erase_if(names, [](const std::wstring& other) { return other.starts_with(L'*'); });
    problem = notFound("block", name, names, "; the drawing has none");
    return false;
}

bool findSheet(KdDbDatabase& drawing, const std::string& name, std::vector<SearchSpace>& spaces,
               std::string& problem)
{
    const std::vector<std::wstring> names = sheetNames(drawing);
    for (const std::wstring& known : names) {
        if (comparable(known) == comparable(kdFromUtf8(name))) {
            spaces = {sheet(known)};
            return true;
        }
    }
    problem = notFound("sheet", name, names, "; the drawing has none");
    return false;
}

} // namespace

bool findSpaces(KdDbDatabase& drawing, const std::string& option, std::vector<SearchSpace>& spaces,
                std::string& problem)
{
    constexpr std::string_view kPaper = "paper:";
    constexpr std::string_view kBlock = "block:";
    spaces.clear();
    if (option.starts_with(kPaper))
        return findSheet(drawing, option.substr(kPaper.size()), spaces, problem);
    if (option.starts_with(kBlock))
        return findBlock(drawing, option.substr(kBlock.size()), spaces, problem);
    if (option != "model" && option != "all") {
        problem = "no space \"" + option + "\"; there are model, paper:NAME, block:NAME and all";
        return false;
    }
    spaces.push_back({kModel, {}, "model"});
    if (option == "all") {
        for (const std::wstring& name : sheetNames(drawing))
            spaces.push_back(sheet(name));
    }
    return true;
}

void enterSpace(KdDbDatabase& drawing, const SearchSpace& space)
{
    if (!space.block.isNull()) {
        kdedOpenBlock(space.block);
        return;
    }
    kddbHostApplicationServices()->layoutManager()->setCurrentLayout(space.layout.c_str(),
                                                                     &drawing);
    if (space.layout != kModel) {
        resbuf onTheSheet{};
        onTheSheet.restype = RTSHORT;
        onTheSheet.resval.rint = 1;
        kdedSetVar(L"CVPORT", &onTheSheet);
    }
}
