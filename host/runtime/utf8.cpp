#include <runtime/utf8.h>

#include <algorithm>

#include <QChar>
#include <QString>

namespace {

bool isCharacter(wchar_t value)
{
    const auto code = static_cast<uint>(value);
    return code <= QChar::LastValidCodePoint && !QChar::isSurrogate(code);
}

} // namespace

std::wstring kdFromUtf8(std::string_view bytes)
{
    return QString::fromUtf8(bytes.data(), static_cast<int>(bytes.size())).toStdWString();
}

std::string kdToUtf8(std::wstring_view text)
{
    std::wstring valid(text);
    std::replace_if(
        valid.begin(), valid.end(), [](wchar_t value) { return !isCharacter(value); }, L'\uFFFD');
    return QString::fromStdWString(valid).toUtf8().toStdString();
}
