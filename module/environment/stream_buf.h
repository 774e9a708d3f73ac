/// Streams of bytes that have a length and a position.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include <runtime/export.h>

/// What went wrong, in words. Thrown as a pointer that the catcher owns.
class KW_EXPORT KwExceptionWithMsg
{
  public:
    explicit KwExceptionWithMsg(const wchar_t* message) : m_message(message) {}
    virtual ~KwExceptionWithMsg();

    const wchar_t* message() const { return m_message.c_str(); }

  private:
    std::wstring m_message;
};

/// A position that a stream knows its way to.
struct KwStreamBufPos
{
    std::uint64_t offset = 0;
};

/// The base of streams; what the bytes lie in is the matter of each kind.
class KW_EXPORT KwStreamBuf
{
  public:
    enum SeekFrom
    {
        kFromStart,
        kFromCurrent,
        kFromEnd,
    };

    virtual ~KwStreamBuf();

    /// Bytes in all.
    virtual std::uint64_t length() const = 0;
    /// Bytes before the current position.
    virtual std::uint64_t tell() const = 0;
    virtual void seek(std::int64_t offset, SeekFrom from) = 0;
    /// Read or write at the position and move behind; the range has been checked by then.
    virtual void rawRead(unsigned char* buffer, unsigned int count) = 0;
    virtual void rawWrite(const unsigned char* buffer, unsigned int count) = 0;

    virtual bool isEOS() const;
    virtual void rewind();
    /// Reads exactly so many bytes. If the stream has fewer it notes that with the program's crash
    /// recorder and throws a `KwExceptionWithMsg`, with nothing read.
    virtual void getBytes(unsigned char* buffer, unsigned int count);

    /// Reads as many bytes as there are, at most `count`; returns how many.
    virtual unsigned int readBytes(unsigned char* buffer, unsigned int count);
    /// The same, block by block: `take` is called with each block until it answers false.
    virtual unsigned int
    readBytes(unsigned int count,
              const std::function<bool(const unsigned char* block, unsigned int size)>& take);
    virtual void writeBytes(const unsigned char* buffer, unsigned int count);
    /// Copies from the position of one stream to that of the other, at most `count` bytes; returns
    /// how many.
    virtual unsigned int copyFrom(KwStreamBuf& source, unsigned int count);
    virtual unsigned int copyTo(KwStreamBuf& target, unsigned int count);
    virtual KwStreamBufPos currentStreamBufPosition() const;

    // For kinds with positions of their own; here they do nothing.
    virtual unsigned char getByteByPos(const KwStreamBufPos&) const { return 0; }
    virtual void setByteByPos(const KwStreamBufPos&, unsigned char) {}
    virtual void getBytesByPos(const KwStreamBufPos&, unsigned char*, unsigned int) const {}
    virtual void setBytesByPos(const KwStreamBufPos&, const unsigned char*, unsigned int) {}
    virtual std::int64_t getStreamPosition(const KwStreamBufPos&) const { return -1; }
    virtual void setStreamPosition(const KwStreamBufPos&) {}
    virtual void moveStreamPosition(KwStreamBufPos&, std::int64_t) const {}
    virtual void setlength(std::uint64_t) {}
    virtual void truncate() {}

  protected:
    KwStreamBuf() = default;
    KwStreamBuf(const KwStreamBuf&) = default;
    KwStreamBuf& operator=(const KwStreamBuf&) = default;
};
