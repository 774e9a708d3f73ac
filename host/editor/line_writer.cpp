#include "line_writer.h"

#include <QString>

LineWriter::~LineWriter()
{
    if (m_lineIsOpen)
        put(L"\n");
}

void LineWriter::print(std::wstring_view text)
{
    if (text.empty())
        return;
    const bool isLineOfItsOwn = text.front() == L'\n';
    if (isLineOfItsOwn) {
        if (m_lineIsOpen)
            put(L"\n");
        text.remove_prefix(1);
    }
    put(text);
    if (isLineOfItsOwn && (text.empty() || text.back() != L'\n'))
        put(L"\n");
}

void LineWriter::put(std::wstring_view text)
{
    if (text.empty())
        return;
    const QByteArray bytes =
        QString::fromWCharArray(text.data(), static_cast<int>(text.size())).toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), m_stream);
    std::fflush(m_stream);
    m_lineIsOpen = text.back() != L'\n';
}
