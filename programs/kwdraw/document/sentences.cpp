#include <kwdraw/document/sentences.h>

#include <QCoreApplication>
#include <QRegularExpression>

#include <vector>

namespace {

constexpr char kContext[] = "Sentences";

/// Of several that fit, the first one counts. Where a number stands, anything may.
constexpr const char* kSentences[] = {
    // files
    QT_TRANSLATE_NOOP("Sentences", "Reading was cancelled."),
    QT_TRANSLATE_NOOP("Sentences", "The file does not exist."),
    QT_TRANSLATE_NOOP("Sentences", "The file can't be read: no permission."),
    QT_TRANSLATE_NOOP("Sentences", "The file can't be read."),
    QT_TRANSLATE_NOOP("Sentences", "The file is a folder, not a drawing."),
    QT_TRANSLATE_NOOP("Sentences", "The file is no regular file."),
    QT_TRANSLATE_NOOP("Sentences", "The file is empty."),
    QT_TRANSLATE_NOOP("Sentences", "The file is no DXF drawing."),
    QT_TRANSLATE_NOOP("Sentences", "The file is too large for the memory."),
    QT_TRANSLATE_NOOP("Sentences", "The file is a DWG drawing (%1), which can't be read here. Save "
                                   "it as DXF."),
    QT_TRANSLATE_NOOP("Sentences", "The file is a DWG drawing. Install the converter dwg2dxf on "
                                   "the path, or save it as DXF."),
    QT_TRANSLATE_NOOP("Sentences", "There is no folder to convert the DWG drawing in."),
    QT_TRANSLATE_NOOP("Sentences", "The converter %1 can't be started."),
    QT_TRANSLATE_NOOP("Sentences", "The DWG drawing can't be converted: %1 ended with an error."),
    QT_TRANSLATE_NOOP("Sentences", "Only entities that were read from a file can be written."),
    QT_TRANSLATE_NOOP("Sentences", "The drawing is too large for the memory."),
    // what a file was found to have
    QT_TRANSLATE_NOOP("Sentences", "A group code was expected; the line was left out"),
    QT_TRANSLATE_NOOP("Sentences", "A number is malformed; what could be read of it was used"),
    QT_TRANSLATE_NOOP("Sentences", "A number is written with a decimal comma"),
    QT_TRANSLATE_NOOP("Sentences", "A handle is malformed; it counts as none"),
    QT_TRANSLATE_NOOP("Sentences", "A text is too long; the rest of it was left out"),
    QT_TRANSLATE_NOOP("Sentences", "A record is too long; the rest of it was left out"),
    QT_TRANSLATE_NOOP("Sentences", "The file ends before its end mark"),
    QT_TRANSLATE_NOOP("Sentences", "A section is not closed"),
    QT_TRANSLATE_NOOP("Sentences", "A record stands outside of all sections; it was left out"),
    QT_TRANSLATE_NOOP("Sentences", "The code page is not known; ANSI_1252 was used"),
    QT_TRANSLATE_NOOP("Sentences", "The texts are UTF-8 and not in the code page of the file; they "
                                   "were read as UTF-8"),
    QT_TRANSLATE_NOOP("Sentences", "An object has the handle 0; it was given a new one"),
    QT_TRANSLATE_NOOP("Sentences", "A handle is used twice; the second object was given a new one"),
    QT_TRANSLATE_NOOP("Sentences", "A name stands twice in a table; the first record counts"),
    QT_TRANSLATE_NOOP("Sentences", "A table record or block has no name; it was given one"),
    QT_TRANSLATE_NOOP("Sentences", "A layer is used and not defined; it was made with defaults"),
    QT_TRANSLATE_NOOP("Sentences", "A linetype is used and not defined; it was made with defaults"),
    QT_TRANSLATE_NOOP("Sentences", "A style is used and not defined; it was made with defaults"),
    QT_TRANSLATE_NOOP("Sentences", "A block is used and not defined"),
    QT_TRANSLATE_NOOP("Sentences", "The kind of an entity is not known; its general properties "
                                   "were read"),
    QT_TRANSLATE_NOOP("Sentences", "A vertex, attribute or sequence end follows nothing that it "
                                   "could belong to"),
    QT_TRANSLATE_NOOP("Sentences", "A table is not closed"),
    QT_TRANSLATE_NOOP("Sentences", "A block is not closed"),
    QT_TRANSLATE_NOOP("Sentences", "A header variable has no value of its kind; its default was "
                                   "kept"),
    QT_TRANSLATE_NOOP("Sentences", "An object has no handle; it was given a new one"),
    QT_TRANSLATE_NOOP("Sentences", "The owner that an object names is not in the drawing"),
    QT_TRANSLATE_NOOP("Sentences", "A block holds a reference that leads back to the block itself"),
    QT_TRANSLATE_NOOP("Sentences", "The version of the drawing is not known"),
    QT_TRANSLATE_NOOP("Sentences", "A section of that name is not known; it was left out"),
    QT_TRANSLATE_NOOP("Sentences", "A table record stands outside of its table; it was read all "
                                   "the same"),
    QT_TRANSLATE_NOOP("Sentences", "A table record of that kind is not known; it was left out"),
    // filters
    QT_TRANSLATE_NOOP("Sentences", "no object type \"%1\"; did you mean \"%2\"? There are: %3"),
    QT_TRANSLATE_NOOP("Sentences", "no object type \"%1\"; there are: %2"),
    QT_TRANSLATE_NOOP("Sentences", "no object type \"%1\"; the drawing holds none"),
    QT_TRANSLATE_NOOP("Sentences", "no property \"%1\"; did you mean \"%2\"? There are: %3"),
    QT_TRANSLATE_NOOP("Sentences", "no property \"%1\"; there are: %2"),
    QT_TRANSLATE_NOOP("Sentences", "\"%1\" names several properties; say one of: %2"),
    QT_TRANSLATE_NOOP("Sentences", "no operator \"%1\" for this property. There are: %2"),
    QT_TRANSLATE_NOOP("Sentences", "no operator \"%1\" for this property"),
    QT_TRANSLATE_NOOP("Sentences", "\"%1\" is no value for the property \"%2\"; it is true or "
                                   "false"),
    QT_TRANSLATE_NOOP("Sentences", "\"%1\" is no value for the property \"%2\"; it is ByLayer, "
                                   "ByBlock, a name such as red, a number from 1 to 255, or red, "
                                   "green and blue as 255,128,0"),
    QT_TRANSLATE_NOOP("Sentences", "\"%1\" is no value for the property \"%2\""),
    QT_TRANSLATE_NOOP("Sentences", "a property is needed before \"%1\""),
    QT_TRANSLATE_NOOP("Sentences", "there is no bracket that this one closes"),
    QT_TRANSLATE_NOOP("Sentences", "here \"and\", \"or\" or the end is expected"),
    QT_TRANSLATE_NOOP("Sentences", "the brackets go too deep"),
    QT_TRANSLATE_NOOP("Sentences", "this bracket is never closed"),
    QT_TRANSLATE_NOOP("Sentences", "the name of a filter is expected behind \"@\""),
    QT_TRANSLATE_NOOP("Sentences", "behind a quoted name a colon or an operator is expected"),
    QT_TRANSLATE_NOOP("Sentences", "a type or a property is expected here"),
    QT_TRANSLATE_NOOP("Sentences", "a value is expected behind the operator; the empty text is "
                                   "\"\""),
    QT_TRANSLATE_NOOP("Sentences", "this quote is never closed"),
    QT_TRANSLATE_NOOP("Sentences", "a filter stands on one line"),
    QT_TRANSLATE_NOOP("Sentences", "there is no filter \"%1\""),
    QT_TRANSLATE_NOOP("Sentences", "there is a filter \"%1\" already"),
    QT_TRANSLATE_NOOP("Sentences", "the filter \"%1\" names itself"),
    QT_TRANSLATE_NOOP("Sentences", "the filter \"%1\" names \"%2\""),
    QT_TRANSLATE_NOOP("Sentences", "the space can't be read"),
    QT_TRANSLATE_NOOP("Sentences", "the space can't be searched"),
    QT_TRANSLATE_NOOP("Sentences", "the space holds no objects"),
    QT_TRANSLATE_NOOP("Sentences", "nothing is selected"),
    QT_TRANSLATE_NOOP("Sentences", "\"%1\" can't be searched for"),
    QT_TRANSLATE_NOOP("Sentences", "values of this kind can't be compared by \"%1\""),
    // filters as commands
    QT_TRANSLATE_NOOP("Sentences", "The search was over objects that were picked by hand; this is "
                                   "its filter."),
    QT_TRANSLATE_NOOP("Sentences", "The search was over a selection that was made by hand; this is "
                                   "its filter."),
    QT_TRANSLATE_NOOP("Sentences", "The search added to a selection that was made by hand; this is "
                                   "its filter."),
    QT_TRANSLATE_NOOP("Sentences", "The searches had several tolerances; this is the filter of the "
                                   "last one."),
    QT_TRANSLATE_NOOP("Sentences", "No filter that can be typed finds the same in this drawing."),
};

struct Pattern
{
    const char* text;
    QRegularExpression form;
};

const std::vector<Pattern>& patterns()
{
    static const std::vector<Pattern> kPatterns = [] {
        static const QRegularExpression kPlace(R"(\\%\d)");
        std::vector<Pattern> made;
        for (const char* text : kSentences) {
            QString form = QRegularExpression::escape(QString::fromUtf8(text));
            form.replace(kPlace, "(.*)");
            made.push_back({text, QRegularExpression(QRegularExpression::anchoredPattern(form))});
        }
        return made;
    }();
    return kPatterns;
}

QString translated(const QString& english)
{
    return QCoreApplication::translate(kContext, english.toUtf8().constData());
}

/// What stands at the numbered places is put in at one go, for it may look like such a place.
QString filled(const QString& text, const QRegularExpressionMatch& match)
{
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        const int number = text[i] == '%' && i + 1 < text.size() ? text[i + 1].digitValue() : -1;
        if (number > 0)
            result += match.captured(number);
        else
            result += text[i];
        i += number > 0 ? 1 : 0;
    }
    return result;
}

} // namespace

QString inUserLanguage(const QString& sentence)
{
    const QString first = sentence.section('\n', 0, 0);
    for (const Pattern& pattern : patterns()) {
        const QRegularExpressionMatch match = pattern.form.match(first);
        if (match.hasMatch())
            return filled(translated(pattern.text), match) + sentence.mid(first.size());
    }
    return sentence;
}

QString sentenceOf(const ReadFinding& finding)
{
    const QString whole = QString::fromWCharArray(finding.sentence.kwszPtr());
    const QString known = QString::fromWCharArray(
        drawingFindingSentence(static_cast<DrawingFinding>(finding.number)));
    return whole.startsWith(known) ? translated(known) + whole.mid(known.size()) : whole;
}
