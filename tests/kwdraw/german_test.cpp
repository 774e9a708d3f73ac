// The window in another language than English.
#include "support.h"

#include <platform/resources.h>

#include <QDialogButtonBox>
#include <QFile>
#include <QLabel>
#include <QLibraryInfo>
#include <QMenuBar>
#include <QMessageBox>
#include <QTimer>

#include <optional>

#include <kwdraw/document/sentences.h>
#include <kwdraw/document/user_language.h>
#include <kwdraw/panels/saved_filters.h>

using namespace kwdraw_test;
using testing::HasSubstr;

namespace {

/// Comes before the window, whose texts are those of the language it was made in.
class InGerman
{
  protected:
    InGerman()
    {
        setResourceLanguage("de");
        m_translation.emplace();
    }
    ~InGerman() { setResourceLanguage(""); }

  private:
    std::optional<Translation> m_translation;
};

class German : private InGerman, public WindowTest
{
};

QStringList textsOf(const QList<QAction*>& actions)
{
    QStringList texts;
    for (const QAction* action : actions)
        texts << action->text();
    return texts;
}

TEST_F(German, NamesMenusAndCommands)
{
    EXPECT_EQ(textsOf(window->menuBar()->actions()),
              (QStringList{"&Datei", "&Bearbeiten", "&Ansicht", "&Hilfe"}));
    EXPECT_EQ(action(Command::Open).text(), "Ö&ffnen...");
    EXPECT_EQ(action(Command::SelectAll).toolTip().section(" (", 0, 0), "Alles auswählen");
}

TEST_F(German, NamesTheUnitsOfTheDrawing)
{
    open(KW_SOURCE_DIR "/examples/floor_plan.dxf");
    EXPECT_EQ(window->findChild<QLabel*>("units")->text(), "Millimeter");
}

TEST_F(German, HasNoLetterToPressTwiceInAMenu)
{
    EXPECT_EQ(doubledLetters(*window), QStringList());
}

TEST_F(German, TellsWhatWasDone)
{
    openPlan();
    EXPECT_THAT(said().toStdString(), HasSubstr("plan.dxf: 8 Objekte"));
    click(100, 50);
    EXPECT_EQ(count(), "1 ausgewählt");
    action(Command::CopyHandles).trigger();
    waitForWork();
    EXPECT_THAT(said().toStdString(), HasSubstr("1 Objekt ist in der Zwischenablage."));
}

TEST_F(German, AnswersTypedCommands)
{
    typeCommand("selectal");
    EXPECT_THAT(said().toStdString(),
                HasSubstr("Unbekannter Befehl „selectal“. Ist SELECTALL gemeint?"));
}

TEST_F(German, ShowsTheDialogOfTheModuleInTheSameLanguage)
{
    openPlan();
    quickSelect([](QWidget& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Schnellauswahl");
        chooseType(dialog, "Kreis");
    });
}

TEST_F(German, FiltersByNamesOfTypesInTheSameLanguage)
{
    openPlan();
    auto* filters = window->findChild<SavedFilters*>();
    emit filters->runRequested("Kreis: Radius > 5");
    EXPECT_THAT(selectedHandles(), testing::UnorderedElementsAre(0xA1, 0xA2, 0xA3));
}

TEST_F(German, TellsWhyADrawingCantBeOpened)
{
    open(pathOf("missing.dxf"));
    EXPECT_THAT(bar("problemBar").text().toStdString(),
                HasSubstr("lässt sich nicht öffnen: Die Datei gibt es nicht."));
}

TEST_F(German, TellsWhatIsWrongWithAFilter)
{
    EXPECT_EQ(inUserLanguage("no property \"Radus\"; did you mean \"Radius\"? There are: A, B\n"
                             "  Circle: Radus > 5\n  ^"),
              "keine Eigenschaft „Radus“; ist „Radius“ gemeint? Es gibt: A, B\n"
              "  Circle: Radus > 5\n  ^");
    EXPECT_EQ(inUserLanguage("there is no filter \"%2 100%\""), "es gibt keinen Filter „%2 100%“");
    EXPECT_EQ(inUserLanguage("something else"), "something else");
}

TEST_F(German, KnowsEverySentenceOnWhatIsFoundInAFile)
{
    for (int number = 1; *drawingFindingSentence(static_cast<DrawingFinding>(number)); ++number) {
        const std::wstring english = drawingFindingSentence(static_cast<DrawingFinding>(number));
        const ReadFinding finding{number, 1, 0, KdString((english + L": \"X\"").c_str())};
        const QString german = sentenceOf(finding);
        EXPECT_FALSE(german.startsWith(QString::fromStdWString(english))) << number;
        EXPECT_TRUE(german.endsWith(": \"X\"")) << number;
    }
    EXPECT_STRNE(drawingFindingSentence(DrawingFinding::RecordOutsideTable), L"");
}

TEST_F(German, ShowsTheButtonsOfQtTranslatedWhereQtIs)
{
    const bool isInstalled =
        QFile::exists(QLibraryInfo::location(QLibraryInfo::TranslationsPath) + "/qtbase_de.qm");
    const QDialogButtonBox buttons(QDialogButtonBox::Close);
    EXPECT_EQ(buttons.button(QDialogButtonBox::Close)->text().remove('&'),
              isInstalled ? "Schließen" : "Close");
}

} // namespace
