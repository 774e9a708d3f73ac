#include <environment/stream_buf.h>

#include <algorithm>

#include <platform/crash_recorder.h>

namespace {

/// Tells the program's recorder, if there is one, and leaves by an exception.
[[noreturn]] void fail(const wchar_t* message)
{
    if (KdadCrashRecorder* recorder = kdadGetCrashRecorder())
        recorder->record(message);
    throw new KwExceptionWithMsg(message);
}

std::uint64_t bytesLeft(const KwStreamBuf& stream)
{
    const std::uint64_t position = stream.tell();
    return std::max(stream.length(), position) - position;
}

} // namespace

KwExceptionWithMsg::~KwExceptionWithMsg() = default;

KwStreamBuf::~KwStreamBuf() = default;

bool KwStreamBuf::isEOS() const
{
    return tell() >= length();
}

void KwStreamBuf::rewind()
{
    seek(0, kFromStart);
}

void KwStreamBuf::getBytes(unsigned char* buffer, unsigned int count)
{
    if (tell() > length() || count > bytesLeft(*this))
        fail(L"Out of stream buffer!");
    rawRead(buffer, count);
}

unsigned int KwStreamBuf::readBytes(unsigned char* buffer, unsigned int count)
{
    const auto there = static_cast<unsigned int>(std::min<std::uint64_t>(count, bytesLeft(*this)));
    if (there > 0)
        rawRead(buffer, there);
    return there;
}

unsigned int
KwStreamBuf::readBytes(unsigned int count,
                       const std::function<bool(const unsigned char*, unsigned int)>& take)
{
    unsigned char block[4096];
    unsigned int done = 0;
    while (done < count) {
        const unsigned int wanted = std::min<unsigned int>(count - done, sizeof block);
        const unsigned int size = readBytes(block, wanted);
        done += size;
        if (size == 0 || !take(block, size))
            break;
    }
    return done;
}

void KwStreamBuf::writeBytes(const unsigned char* buffer, unsigned int count)
{
    if (count > 0)
        rawWrite(buffer, count);
}

unsigned int KwStreamBuf::copyFrom(KwStreamBuf& source, unsigned int count)
{
    return source.readBytes(count, [this](const unsigned char* block, unsigned int size) {
        writeBytes(block, size);
        return true;
    });
}

unsigned int KwStreamBuf::copyTo(KwStreamBuf& target, unsigned int count)
{
    return target.copyFrom(*this, count);
}

KwStreamBufPos KwStreamBuf::currentStreamBufPosition() const
{
    return {tell()};
}
