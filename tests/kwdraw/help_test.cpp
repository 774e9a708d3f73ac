#include "support.h"

#include <platform/resources.h>

#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <QToolButton>
#include <QTreeWidget>

#include <kwdraw/window/help_browser.h>
#include <kwdraw/window/help_pages.h>
#include <kwdraw/window/help_window.h>

using namespace kwdraw_test;
using testing::HasSubstr;

namespace {

class Help : public WindowTest
{
  protected:
    HelpWindow& help()
    {
        press(Qt::Key_F1);
        auto* found = window->findChild<HelpWindow*>();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(found));
        return *found;
    }
    HelpBrowser& page() { return *window->findChild<HelpBrowser*>(); }
    QTreeWidget& contents() { return *window->findChild<QTreeWidget*>("helpContents"); }
    QLineEdit& wanted() { return *window->findChild<QLineEdit*>("helpSearch"); }
    QString outcome() { return window->findChild<QLabel*>("helpOutcome")->text(); }

    void clickRow(const QString& text)
    {
        const auto rows = contents().findItems(text, Qt::MatchExactly | Qt::MatchRecursive);
        ASSERT_FALSE(rows.isEmpty()) << text.toStdString();
        contents().scrollToItem(rows.first());
        QTest::mouseClick(contents().viewport(), Qt::LeftButton, {},
                          contents().visualItemRect(rows.first()).center());
    }
    /// The first block that is seen.
    QString top() { return page().cursorForPosition(QPoint(30, 30)).block().text(); }
    void searchFor(const QString& text)
    {
        QTest::keyClick(&page(), Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(&wanted(), text);
        QTest::keyClick(&wanted(), Qt::Key_Return);
    }
};

TEST_F(Help, ComesUpByItsKey)
{
    EXPECT_TRUE(help().isVisible());
    EXPECT_EQ(page().place(), "kwdraw.md");
    EXPECT_THAT(page().toPlainText().toStdString(), HasSubstr("selects among its objects"));
}

TEST_F(Help, IsOneWindowHoweverOftenItIsAskedFor)
{
    HelpWindow& first = help();
    typeCommand("help qselect");
    EXPECT_EQ(window->findChildren<HelpWindow*>().size(), 1);
    EXPECT_EQ(page().place(), "quick_select.md");
    first.close();
    typeCommand("keys");
    EXPECT_TRUE(window->findChildren<HelpWindow*>().last()->isVisible());
}

TEST_F(Help, GoesWhereItsContentsSay)
{
    help();
    clickRow("Moving about");
    EXPECT_EQ(page().place(), "kwdraw.md#moving-about");
    EXPECT_EQ(top(), "Moving about");
    clickRow("Quick Select");
    EXPECT_EQ(page().place(), "quick_select.md");
    EXPECT_EQ(top(), "Quick Select");
}

TEST_F(Help, GoesBackAndForth)
{
    help();
    auto* back = window->findChild<QToolButton*>("helpBack");
    auto* forward = window->findChild<QToolButton*>("helpForward");
    EXPECT_FALSE(back->isEnabled());
    clickRow("Blocks");
    QTest::mouseClick(back, Qt::LeftButton);
    EXPECT_EQ(page().place(), "kwdraw.md");
    EXPECT_EQ(contents().currentItem()->text(0), "kwdraw");
    QTest::mouseClick(forward, Qt::LeftButton);
    EXPECT_EQ(page().place(), "kwdraw.md#blocks");
    QTest::keyClick(&page(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(page().place(), "kwdraw.md");
}

TEST_F(Help, FollowsLinks)
{
    help();
    QTextCursor link = page().document()->find("Quick Select");
    ASSERT_EQ(link.charFormat().anchorHref(), "quick_select.md");
    page().setTextCursor(link);
    page().ensureCursorVisible();
    link.setPosition(link.selectionStart() + 4);
    QTest::mouseClick(page().viewport(), Qt::LeftButton, {}, page().cursorRect(link).center());
    EXPECT_EQ(page().place(), "quick_select.md");
}

TEST_F(Help, SearchesThePageRoundAndRound)
{
    help();
    searchFor("reload");
    EXPECT_EQ(page().textCursor().selectedText().toLower(), "reload");
    const int first = page().textCursor().position();
    searchFor("block definition");
    const int only = page().textCursor().position();
    EXPECT_GT(only, first);
    QTest::keyClick(&page(), Qt::Key_F3);
    EXPECT_EQ(page().textCursor().position(), only);
    EXPECT_EQ(outcome(), "");
}

TEST_F(Help, SearchesBackwards)
{
    help();
    searchFor("Esc");
    const int first = page().textCursor().position();
    QTest::keyClick(&page(), Qt::Key_F3);
    const int second = page().textCursor().position();
    EXPECT_GT(second, first);
    QTest::keyClick(&page(), Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(page().textCursor().position(), first);
}

TEST_F(Help, TellsThatNothingWasFound)
{
    help();
    searchFor("nowhere at all");
    EXPECT_EQ(outcome(), "Not found on this page");
    QTest::keyClick(&wanted(), Qt::Key_Backspace);
    EXPECT_EQ(outcome(), "");
}

TEST_F(Help, HasAllCommandsAndKeysOnAPage)
{
    typeCommand("keys");
    const QString text = page().toPlainText();
    for (const CommandRow& row : Commands::rows()) {
        const QString name = QString(row.text).remove('&').remove("...");
        EXPECT_TRUE(text.contains(name)) << row.text;
        for (const QString& typed : QString(row.typed).split('|'))
            EXPECT_TRUE(text.contains(typed)) << row.typed;
    }
}

TEST_F(Help, ShowsItsPicturesInTheColoursOfTheWindow)
{
    const QImage light = helpPicture("kwdraw-light.png", false);
    const QImage dark = helpPicture("kwdraw-light.png", true);
    ASSERT_FALSE(light.isNull());
    EXPECT_LT(qGray(dark.pixel(2, 2)), qGray(light.pixel(2, 2)));
    help();
    const QUrl name("images/kwdraw-light.png");
    const auto shown = [&] {
        return page().loadResource(QTextDocument::ImageResource, name).value<QImage>();
    };
    EXPECT_EQ(shown(), dark);
    press(Qt::Key_F1);
    action(Command::LightTheme).trigger();
    EXPECT_EQ(shown(), light);
}

/// The pages in each language.
class HelpPages : public testing::TestWithParam<const char*>
{
  protected:
    HelpPages() { setResourceLanguage(GetParam()); }
    ~HelpPages() override { setResourceLanguage(""); }

    static QStringList placesOf(const QString& page)
    {
        QTextDocument text;
        text.setMarkdown(helpText(page));
        QStringList places;
        for (const HelpHeading& heading : headingsOf(text))
            places << '#' + heading.anchor;
        return places;
    }
};

TEST_P(HelpPages, HaveATitleAndHeadings)
{
    for (const QString& name : helpPages()) {
        QTextDocument text;
        text.setMarkdown(helpText(name));
        const QList<HelpHeading> headings = headingsOf(text);
        ASSERT_FALSE(headings.isEmpty()) << name.toStdString();
        EXPECT_EQ(headings.first().level, 1) << name.toStdString();
        EXPECT_EQ(placesOf(name).removeDuplicates(), 0) << name.toStdString();
    }
}

TEST_P(HelpPages, LinkOnlyToEachOther)
{
    static const QRegularExpression kLink(R"((?<!!)\[[^\]]*\]\(([^)#]*)(#[^)]*)?\))");
    for (const QString& name : helpPages()) {
        const QString text = helpText(name);
        for (auto link = kLink.globalMatch(text); link.hasNext();) {
            const QRegularExpressionMatch match = link.next();
            const QString page = match.captured(1).isEmpty() ? name : match.captured(1);
            EXPECT_TRUE(helpPages().contains(page)) << match.captured().toStdString();
            EXPECT_TRUE(match.captured(2).isEmpty() || placesOf(page).contains(match.captured(2)))
                << match.captured().toStdString();
        }
    }
}

TEST_P(HelpPages, HavePicturesThatAreThere)
{
    static const QRegularExpression kPicture(R"(!\[[^\]]*\]\(([^)]*)\))");
    int count = 0;
    for (const QString& name : helpPages()) {
        const QString text = helpText(name);
        for (auto picture = kPicture.globalMatch(text); picture.hasNext(); ++count) {
            const QString file = QUrl(picture.next().captured(1)).fileName();
            EXPECT_FALSE(helpPicture(file, false).isNull()) << file.toStdString();
            EXPECT_FALSE(helpPicture(file, true).isNull()) << file.toStdString();
        }
    }
    EXPECT_GE(count, 2);
}

TEST_P(HelpPages, HaveTheSameHeadingsInNumber)
{
    const QStringList here = placesOf("kwdraw.md");
    setResourceLanguage("en");
    EXPECT_EQ(here.size(), placesOf("kwdraw.md").size());
}

INSTANTIATE_TEST_SUITE_P(Languages, HelpPages, testing::Values("en", "de"),
                         [](const auto& language) { return std::string(language.param); });

TEST(HelpText, IsEnglishWhereThereIsNoOther)
{
    setResourceLanguage("fr");
    EXPECT_TRUE(helpText("kwdraw.md").contains("## Moving about"));
    setResourceLanguage("de");
    EXPECT_TRUE(helpText("kwdraw.md").contains("## Bewegen"));
    setResourceLanguage("");
    EXPECT_TRUE(helpText("missing.md").isEmpty());
}

TEST(HelpPicture, SpeaksTheLanguageOfTheUser)
{
    setResourceLanguage("de");
    const QImage german = helpPicture("quick-select-light.png", false);
    setResourceLanguage("fr");
    const QImage other = helpPicture("quick-select-light.png", false);
    setResourceLanguage("en");
    const QImage english = helpPicture("quick-select-light.png", false);
    setResourceLanguage("");
    EXPECT_EQ(other, english);
    EXPECT_NE(german, english);
}

} // namespace
