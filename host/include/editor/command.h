/// Commands as objects.
#pragma once

#include <runtime/rx_class.h>

/// Names the library from which a command takes its texts; here always the empty one.
class KdRxResourceInstance
{
  public:
    KdRxResourceInstance() = default;
    explicit KdRxResourceInstance(void* handle) : m_handle(handle) {}
    bool isEmpty() const { return m_handle == nullptr; }

  private:
    void* m_handle = nullptr;
};

/// A command. Binary interface: the order of the virtual operations is fixed.
class KW_EXPORT KdEdCommand : public KdRxObject
{
    KD_RX_DECLARE(KdEdCommand)

    using Function = void (*)();

    virtual void commandUndef(bool undefined) = 0;
    virtual int commandFlags() const = 0;
    virtual Function functionAddr() const = 0;
    virtual void functionAddr(Function function) = 0;
    virtual void* commandApp() const = 0;
    virtual void* UIContext() const = 0;
    virtual int functionCode() const = 0;
    virtual void functionCode(int code) = 0;
    virtual const wchar_t* globalName() const = 0;
    virtual const wchar_t* localName() const = 0;
    virtual void* resourceHandle() const = 0;
    virtual KdRxResourceInstance resourceInstance() const = 0;
};
