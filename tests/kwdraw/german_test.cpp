// The window in another language than English.
#include "support.h"

#include <platform/resources.h>

#include <QDialogButtonBox>
#include <QFile>
#include <QKeySequence>
#include <QLibraryInfo>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTimer>

#include <optional>

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

TEST_F(German, HasNoLetterToPressTwiceInAMenu)
{
    for (QMenu* menu : window->menuBar()->findChildren<QMenu*>() + window->findChildren<QMenu*>()) {
        QStringList letters;
        for (const QString& text : textsOf(menu->actions()))
            if (const QKeySequence letter = QKeySequence::mnemonic(text); !letter.isEmpty())
                letters << letter.toString();
        EXPECT_EQ(letters.removeDuplicates(), 0) << menu->title().toStdString();
    }
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

TEST_F(German, ShowsTheButtonsOfQtTranslatedWhereQtIs)
{
    const bool isInstalled =
        QFile::exists(QLibraryInfo::location(QLibraryInfo::TranslationsPath) + "/qtbase_de.qm");
    const QDialogButtonBox buttons(QDialogButtonBox::Close);
    EXPECT_EQ(buttons.button(QDialogButtonBox::Close)->text().remove('&'),
              isInstalled ? "Schließen" : "Close");
}

} // namespace
