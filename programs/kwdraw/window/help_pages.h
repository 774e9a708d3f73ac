/// The pages of the help, in Markdown, and what stands in them.
#pragma once

#include <QImage>
#include <QList>
#include <QString>
#include <QStringList>

class QTextDocument;

struct HelpHeading
{
    QString text;
    QString anchor;   ///< as links name it: lower case, with dashes between the words
    int level = 1;    ///< 1 for the title of a page
    int position = 0; ///< in the document
};

/// The names of all pages, in the order of the contents.
QStringList helpPages();

/// The text of a page in the user's language, or in English; empty if there is no such page.
QString helpText(const QString& page);

/// A picture in the colours of the window; null if there is none of that name.
/// @param name  as the pages name it, for light colours
QImage helpPicture(const QString& name, bool isDark);

QList<HelpHeading> headingsOf(const QTextDocument& document);
