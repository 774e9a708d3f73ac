#include <kwdraw/texts/text_face.h>

#include <QFontInfo>
#include <QHash>
#include <QMutex>
#include <QMutexLocker>

#include <algorithm>
#include <span>

#include <database/tables.h>
#include <kwdraw/texts/font_metrics.h>

namespace {

const QString kPlainFamily = QStringLiteral("DejaVu Sans");
const QString kSmallLetters = QStringLiteral("abcdefghijklmnopqrstuvwxyz");

/// How wide the alphabet in small letters is in a font, for capitals 1 high. Of a font whose
/// letters are all about as wide: what gives small and capital letters the right width on average.
struct WidthRow
{
    const char* name; ///< in small letters
    double width;
};

constexpr double kUsualStrokeWidth = 21.0;

constexpr WidthRow kShapeFonts[] = {
    {"txt", 22.5},      {"monotxt", 26.0}, {"simplex", 21.0}, {"romans", 21.0}, {"romand", 21.0},
    {"romanc", 21.3},   {"romant", 21.3},  {"complex", 21.3}, {"italic", 21.3}, {"italicc", 21.3},
    {"scripts", 18.5},  {"isocp", 17.2},   {"isocp2", 17.2},  {"isocp3", 17.2}, {"isoct", 17.2},
    {"iso", 17.2},      {"gbenor", 17.2},  {"gbeitc", 17.2},  {"gost", 17.2},   {"isocpeur", 17.2},
    {"isocteur", 17.2},
};

constexpr WidthRow kFamilies[] = {
    {"arial", 17.78},           {"helvetica", 17.78},     {"arial narrow", 14.58},
    {"calibri", 18.40},         {"century gothic", 19.3}, {"tahoma", 17.5},
    {"times new roman", 18.04}, {"isocpeur", 17.2},       {"isocteur", 17.2},
};

/// Files of fonts that styles name with no face beside them.
struct FileRow
{
    const char* file; ///< in small letters, without its extension
    const char* family;
    bool bold;
    bool italic;
};

constexpr FileRow kFiles[] = {
    {"arial", "Arial", false, false},
    {"arialbd", "Arial", true, false},
    {"arialbi", "Arial", true, true},
    {"ariali", "Arial", false, true},
    {"arialn", "Arial Narrow", false, false},
    {"arialuni", "Arial Unicode MS", false, false},
    {"calibri", "Calibri", false, false},
    {"calibrib", "Calibri", true, false},
    {"calibrii", "Calibri", false, true},
    {"comic", "Comic Sans MS", false, false},
    {"consola", "Consolas", false, false},
    {"cour", "Courier New", false, false},
    {"courbd", "Courier New", true, false},
    {"gothic", "Century Gothic", false, false},
    {"gothicb", "Century Gothic", true, false},
    {"micross", "Microsoft Sans Serif", false, false},
    {"simsun", "SimSun", false, false},
    {"tahoma", "Tahoma", false, false},
    {"tahomabd", "Tahoma", true, false},
    {"times", "Times New Roman", false, false},
    {"timesbd", "Times New Roman", true, false},
    {"timesbi", "Times New Roman", true, true},
    {"timesi", "Times New Roman", false, true},
    {"verdana", "Verdana", false, false},
};

const WidthRow* rowOf(std::span<const WidthRow> rows, const QString& name)
{
    const auto row = std::ranges::find_if(
        rows, [&name](const WidthRow& one) { return name == QLatin1String(one.name); });
    return row == rows.end() ? nullptr : &*row;
}

double stretchTo(double width, const SceneFont& font)
{
    const double own = advanceOf(font, kSmallLetters);
    return own > 0.0 ? width / own : 1.0;
}

/// The family that the system takes where one is asked for; itself if it is there.
QString availableFamily(const QString& family)
{
    static QMutex access;
    static QHash<QString, QString> known;
    constexpr int kMostNames = 512; // each costs a search among all fonts; drawings can be hostile
    const QMutexLocker lock(&access);
    const auto entry = known.constFind(family);
    if (entry != known.constEnd())
        return *entry;
    if (known.size() >= kMostNames)
        return kPlainFamily;
    const QString found = QFontInfo(QFont(family)).family();
    return *known.insert(family, found.isEmpty() ? kPlainFamily : found);
}

TextFace faceOfShapeFont(const QString& name)
{
    TextFace face;
    face.font.family = availableFamily(kPlainFamily);
    const WidthRow* row = rowOf(kShapeFonts, name);
    face.stretch = stretchTo(row ? row->width : kUsualStrokeWidth, face.font);
    return face;
}

TextFace faceOfFamily(const QString& family, bool bold, bool italic)
{
    TextFace face{{availableFamily(family), bold, italic}};
    const bool isThere = face.font.family.compare(family, Qt::CaseInsensitive) == 0;
    const WidthRow* row = isThere ? nullptr : rowOf(kFamilies, family.toLower());
    if (row) // told for the plain face; a bold one is as much wider in both fonts
        face.stretch = stretchTo(row->width, {face.font.family, false, false});
    return face;
}

QString textOf(std::wstring_view text)
{
    return QString::fromWCharArray(text.data(), static_cast<int>(text.size()));
}

bool isTrueTypeFile(const QString& extension)
{
    return extension == QLatin1String("ttf") || extension == QLatin1String("otf") ||
           extension == QLatin1String("ttc");
}

} // namespace

TextFace faceOf(const KdDbTextStyleTableRecord* style)
{
    if (!style)
        return faceOfShapeFont(QString());
    if (!style->typeface().isEmpty())
        return faceOfFamily(style->typeface(), style->isBold(), style->isItalic());
    return faceOfFile(style->fileName());
}

TextFace faceOfFamily(std::wstring_view family, bool bold, bool italic)
{
    return faceOfFamily(textOf(family).trimmed(), bold, italic);
}

TextFace faceOfFile(std::wstring_view fileName)
{
    const std::size_t folder = fileName.find_last_of(L"/\\");
    if (folder != std::wstring_view::npos)
        fileName.remove_prefix(folder + 1);
    const QString file = textOf(fileName).trimmed();
    const int dot = file.lastIndexOf(QLatin1Char('.'));
    const QString extension = dot < 0 ? QString() : file.mid(dot + 1).toLower();
    const QString name = file.left(dot).toLower();
    if (!isTrueTypeFile(extension))
        return faceOfShapeFont(extension == QLatin1String("shx") ? name : file.toLower());
    const auto row = std::ranges::find_if(
        kFiles, [&name](const FileRow& one) { return name == QLatin1String(one.file); });
    if (row != std::end(kFiles))
        return faceOfFamily(QLatin1String(row->family), row->bold, row->italic);
    return faceOfFamily(file.left(dot), false, false);
}

bool isTrueType(const KdDbTextStyleTableRecord* style)
{
    if (!style)
        return false;
    const QString file = textOf(style->fileName()).trimmed().toLower();
    return !style->typeface().isEmpty() || isTrueTypeFile(file.section(QLatin1Char('.'), -1));
}

bool isVertical(const KdDbTextStyleTableRecord* style)
{
    return style && style->isVertical() && !isTrueType(style);
}
