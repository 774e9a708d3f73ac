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

/// In the user's language, or in English where it has no such file.
QString fileOfHelp(const QString& name)
{
    const QString own = ":/help/" + userLanguage() + '/' + name;
    return QFile::exists(own) ? own : ":/help/en/" + name;
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
    QFile file(fileOfHelp(page));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QImage helpPicture(const QString& name, bool isDark)
{
    const QString wanted = isDark ? QString(name).replace("-light.", "-dark.") : name;
    QImage picture(fileOfHelp("images/" + wanted));
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
