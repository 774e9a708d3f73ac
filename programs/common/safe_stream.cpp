#include <common/safe_stream.h>

#include <runtime/utf8.h>

SafeStream::Buffer::int_type SafeStream::Buffer::overflow(int_type byte)
{
    if (traits_type::eq_int_type(byte, traits_type::eof()))
        return traits_type::not_eof(byte);
    const char one = traits_type::to_char_type(byte);
    file.write({&one, 1});
    return byte;
}

std::streamsize SafeStream::Buffer::xsputn(const char* bytes, std::streamsize count)
{
    file.write({bytes, static_cast<std::size_t>(count)});
    return count;
}

bool SafeStream::open(const std::filesystem::path& target, const SafeFileRules& rules,
                      std::string& problem)
{
    m_name = target.string();
    KdString error;
    return told(m_buffer.file.open(target, rules, error), error, problem);
}

bool SafeStream::finish(std::string& problem)
{
    KdString error;
    return told(m_buffer.file.finish(error), error, problem);
}

bool SafeStream::told(KdErrorStatus status, const KdString& error, std::string& problem) const
{
    if (status == eOk)
        return true;
    problem = m_name + ": " + kdToUtf8(error);
    return false;
}
