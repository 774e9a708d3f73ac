#include "resource_library.h"

#include <platform/resource_table.h>

#include <dlfcn.h>

std::unique_ptr<ResourceLibrary> ResourceLibrary::load(const std::filesystem::path& file)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error))
        return nullptr;
    void* library = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!library)
        return nullptr;
    const auto* table = static_cast<const ResourceTable*>(dlsym(library, "kwResourceTable"));
    if (!table || table->version != kResourceTableVersion) {
        dlclose(library);
        return nullptr;
    }
    // The library is never closed: texts are handed out as pointers into it.
    return std::unique_ptr<ResourceLibrary>(new ResourceLibrary(*table));
}

std::wstring_view ResourceLibrary::find(unsigned int id) const
{
    const std::uint32_t mask = ~0u >> m_table.shift;
    for (std::uint32_t slot = resourceSlot(id, m_table.shift); m_table.slots[slot].id != 0;
         slot = (slot + 1) & mask) {
        const ResourceSlot& text = m_table.slots[slot];
        if (text.id == id)
            return {m_table.characters + text.offset, text.length};
    }
    return {};
}

std::string_view ResourceLibrary::findLayout(std::wstring_view path) const
{
    for (std::uint32_t i = 0; i < m_table.layoutCount; ++i) {
        const ResourceLayout& layout = m_table.layouts[i];
        if (layout.path == path)
            return {layout.xml, layout.size};
    }
    return {};
}
