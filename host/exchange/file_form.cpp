#include "file_form.h"

#include <string>

namespace dxf {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// The other drawing format begins with its version in place of a group code.
bool isDwg(std::string_view bytes)
{
    return bytes.size() >= 6 && bytes.starts_with("AC1") && bytes.find_first_of("\r\n") > 5;
}

/// Group code 0 is where the two widths differ: one zero byte or two. A comment, 999, is
/// escaped by FF in the narrow form.
CodeWidth widthOf(std::string_view bytes)
{
    const std::string_view code = bytes.substr(kBinarySentinel.size(), 2);
    const bool narrow = code.size() == 2 && ((code[0] == '\0' && code[1] != '\0') ||
                                             static_cast<unsigned char>(code[0]) == 0xFF);
    return narrow ? CodeWidth::OneByte : CodeWidth::TwoBytes;
}

/// A drawing opens a section, or ends at once, among its first groups.
bool beginsLikeDrawing(const FileForm& form)
{
    constexpr int kGroupsLookedAt = 100;
    constexpr std::size_t kBytesLookedAt = 64 * 1024;
    const std::size_t end = std::min(form.bytes.size(), form.begin + kBytesLookedAt);
    GroupStream groups(form, form.begin, end, nullptr);
    Group group;
    for (int i = 0; i < kGroupsLookedAt && groups.next(group); ++i) {
        const std::string_view name = trimmed(group.text);
        if (group.code == 0 && (name == "SECTION" || name == "EOF"))
            return true;
    }
    return false;
}

KdErrorStatus fail(KdString& error, const wchar_t* reason)
{
    error = reason;
    return eBadDrawing;
}

} // namespace

KdErrorStatus recognise(std::string_view bytes, FileForm& form, KdString& error)
{
    if (bytes.empty())
        return fail(error, L"The file is empty.");
    if (isDwg(bytes)) {
        const std::wstring version(bytes.begin(), bytes.begin() + 6);
        return fail(error, (L"The file is a DWG drawing (" + version +
                            L"), which can't be read here. Save it as DXF.")
                               .c_str());
    }
    FileForm result{.bytes = bytes};
    if (bytes.starts_with(kBinarySentinel)) {
        result.binary = true;
        result.begin = kBinarySentinel.size();
        result.width = widthOf(bytes);
    } else if (bytes.starts_with(kByteOrderMark)) {
        result.begin = kByteOrderMark.size();
    }
    if (!beginsLikeDrawing(result))
        return fail(error, L"The file is no DXF drawing.");
    form = result;
    return eOk;
}

} // namespace dxf
