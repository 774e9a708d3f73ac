/// The quick-select command.
#pragma once

#include <editor/command.h>

/// One run, made on the stack of an entry function. The host never reaches the object, so all that
/// its base class asks for answers empty.
class DDQSelectCommand : public KdEdCommand
{
  public:
    void commandUndef(bool) override {}
    int commandFlags() const override { return 0; }
    Function functionAddr() const override { return nullptr; }
    void functionAddr(Function) override {}
    void* commandApp() const override { return nullptr; }
    void* UIContext() const override { return nullptr; }
    int functionCode() const override { return 0; }
    void functionCode(int) override {}
    const wchar_t* globalName() const override { return nullptr; }
    const wchar_t* localName() const override { return nullptr; }
    void* resourceHandle() const override { return nullptr; }
    KdRxResourceInstance resourceInstance() const override { return KdRxResourceInstance(nullptr); }

    /// Gathers the candidates, asks for the filter, and makes the outcome the host's selection.
    /// @param ss  the name of the set that is the starting selection, or null; never written to
    void execute(long* ss);
};
