#include <kwdraw/window/help_pages.h>

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextDocument>

#include <kwdraw/document/user_language.h>
#include <kwdraw/window/commands.h>

namespace {

constexpr char kKeys[] = "keys.md";
constexpr double kPixelsPerUnit = 2.0; ///< of the pictures

QString fileText(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString anchorOf(const QString& heading)
{
    static const QRegularExpression kOthers(R"([^\w\s-])",
                                            QRegularExpression::UseUnicodePropertiesOption);
    return heading.toLower().remove(kOthers).simplified().replace(' ', '-');
}

} // namespace

QStringList helpPages()
{
    return {"kwdraw.md", "quick_select.md", kKeys};
}

QString helpText(const QString& page)
{
    if (page == kKeys)
        return "# " + QCoreApplication::translate("HelpPages", "Keys and Commands") + "\n\n" +
               keyTable();
    const QString own = fileText(":/help/" + userLanguage() + '/' + page);
    return own.isEmpty() ? fileText(":/help/en/" + page) : own;
}

QImage helpPicture(const QString& name, bool isDark)
{
    const QString wanted = isDark ? QString(name).replace("-light.", "-dark.") : name;
    QImage picture(":/help/images/" + wanted);
    picture.setDevicePixelRatio(kPixelsPerUnit);
    return picture;
}

QList<HelpHeading> headingsOf(const QTextDocument& document)
{
    QList<HelpHeading> headings;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        if (const int level = block.blockFormat().headingLevel(); level > 0)
            headings << HelpHeading{block.text(), anchorOf(block.text()), level, block.position()};
    return headings;
}
