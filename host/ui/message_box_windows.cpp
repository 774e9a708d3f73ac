#include <ui/message_box_windows.h>

#include <platform/message_box.h>

#include <QApplication>
#include <QMessageBox>
#include <QString>

namespace {

QMessageBox::Icon iconOf(unsigned int style)
{
    switch (style & MB_ICONMASK) {
    case MB_ICONSTOP:
        return QMessageBox::Critical;
    case MB_ICONQUESTION:
        return QMessageBox::Question;
    case MB_ICONWARNING:
        return QMessageBox::Warning;
    case MB_ICONINFORMATION:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

class WindowHandler : public MessageBoxHandler
{
  public:
    MessageBoxHandler* withoutApplication = nullptr;

    int show(const Message& message) override
    {
        if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
            return withoutApplication->show(message);
        QMessageBox box(iconOf(message.style), QString::fromWCharArray(message.caption),
                        QString::fromWCharArray(message.text), QMessageBox::Ok, message.owner);
        // Names of layers and the like may look like markup and are no markup.
        box.setTextFormat(Qt::PlainText);
        box.exec();
        return kMessageBoxOk;
    }
};

} // namespace

void installMessageBoxWindows()
{
    static WindowHandler handler;
    MessageBoxHandler* const previous = setMessageBoxHandler(&handler);
    if (previous != &handler)
        handler.withoutApplication = previous;
}
