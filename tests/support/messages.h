/// Messages that tests look at instead of a person.
#pragma once

#include <string>
#include <vector>

#include <platform/message_box.h>

/// Collects the messages that come up during its life instead of showing them.
class Messages : public MessageBoxHandler
{
  public:
    /// One of them whole.
    struct Box
    {
        HWND owner = nullptr;
        std::wstring text;
        std::wstring caption;
        unsigned int style = 0;
    };

    Messages() : m_previous(setMessageBoxHandler(this)) {}
    ~Messages() override { setMessageBoxHandler(m_previous); }
    Messages(const Messages&) = delete;
    Messages& operator=(const Messages&) = delete;

    int show(const Message& message) override
    {
        shown.emplace_back(message.text);
        last = {message.owner, message.text, message.caption, message.style};
        return kMessageBoxOk;
    }

    std::vector<std::wstring> shown; ///< their texts, in order
    Box last;

  private:
    MessageBoxHandler* m_previous;
};
