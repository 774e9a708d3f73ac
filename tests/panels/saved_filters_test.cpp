#include <kwdraw/panels/saved_filters.h>

#include <fstream>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

#include "support.h"

using namespace panels_test;
using testing::ElementsAre;

namespace {

class Saved : public testing::Test
{
  protected:
    SavedFilters& panel()
    {
        if (!m_panel) {
            m_panel = std::make_unique<SavedFilters>(nullptr, m_file, m_recent);
            m_panel->resize(320, 400);
            m_panel->show();
            QObject::connect(m_panel.get(), &SavedFilters::runRequested,
                             [this](const QString& text) { asked.push_back(text); });
            EXPECT_TRUE(QTest::qWaitForWindowExposed(m_panel.get()));
            QApplication::setActiveWindow(m_panel.get());
        }
        return *m_panel;
    }
    void closePanel() { m_panel.reset(); }
    void write(const std::string& content) { std::ofstream(m_file) << content; }
    /// As other programs do it: a new file takes the place of the old one.
    void replace(const std::string& content)
    {
        std::ofstream(m_file.string() + ".new") << content;
        std::filesystem::rename(m_file.string() + ".new", m_file);
    }
    std::string content() const
    {
        std::ifstream stream(m_file);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    QTreeWidget& list() { return *panel().findChild<QTreeWidget*>("filters"); }
    QTreeWidgetItem* saved(int row) { return list().topLevelItem(0)->child(row); }
    QTreeWidgetItem* recent(int row) { return list().topLevelItem(1)->child(row); }
    QStringList names()
    {
        QStringList texts;
        for (int i = 0; i < list().topLevelItem(0)->childCount(); ++i)
            texts << saved(i)->text(0);
        return texts;
    }
    QStringList recents()
    {
        QStringList texts;
        for (int i = 0; i < list().topLevelItem(1)->childCount(); ++i)
            texts << recent(i)->text(0);
        return texts;
    }
    void choose(QTreeWidgetItem* item)
    {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                          list().visualItemRect(item).center());
    }
    QPushButton& button(const char* name) { return *panel().findChild<QPushButton*>(name); }
    void click(const char* name) { QTest::mouseClick(&button(name), Qt::LeftButton); }
    QString problem()
    {
        const auto* label = panel().findChild<QLabel*>("problem");
        return label->isVisible() ? label->text() : QString();
    }
    /// Types over the name that is being edited.
    void typeName(const QString& name)
    {
        auto* edit = list().findChild<QLineEdit*>();
        ASSERT_TRUE(edit) << "no name is being edited";
        edit->selectAll();
        QTest::keyClicks(edit, name);
        QTest::keyClick(edit, Qt::Key_Return);
        QTest::qWait(20);
    }

    std::vector<QString> asked;

  private:
    QTemporaryDir m_folder;

  protected:
    const std::filesystem::path m_file =
        std::filesystem::path(m_folder.path().toStdString()) / "kwqselect" / "filters.txt";
    const std::filesystem::path m_recent = m_file.parent_path() / "recent_filters.txt";

    Saved() { std::filesystem::create_directories(m_file.parent_path()); }
    ~Saved() override { closePanel(); }

  private:
    std::unique_ptr<SavedFilters> m_panel;
};

TEST_F(Saved, AreListedWithTheirTexts)
{
    write("# mine\npipes = Layer = PIPES\nbig = Circle: Radius > 5\n");
    EXPECT_EQ(names(), (QStringList{"pipes", "big"}));
    EXPECT_EQ(saved(1)->text(1), "Circle: Radius > 5");
    EXPECT_EQ(problem(), "");
}

TEST_F(Saved, AreRunByADoubleClickAKeyAndAButton)
{
    write("pipes = Layer = PIPES\nbig = Circle\n");
    choose(saved(1));
    QTest::mouseDClick(list().viewport(), Qt::LeftButton, {},
                       list().visualItemRect(saved(1)).center());
    QTest::keyClick(&list(), Qt::Key_Return);
    click("run");
    EXPECT_THAT(asked, ElementsAre("@big", "@big", "@big"));
}

TEST_F(Saved, TakeTheLastRunUnderANameThatIsTyped)
{
    EXPECT_FALSE(button("save").isEnabled());
    panel().noteRun(L"Circle: Radius > 5");
    click("save");
    typeName("big");
    EXPECT_EQ(content(), "big = Circle: Radius > 5\n");
    EXPECT_EQ(names(), QStringList{"big"});
}

TEST_F(Saved, CantTakeARunThatCantBeTold)
{
    panel().noteRun(L"Circle");
    panel().noteRun(L"");
    EXPECT_FALSE(button("save").isEnabled());
    EXPECT_EQ(recents(), QStringList{"Circle"});
}

TEST_F(Saved, TakeARecentOneThatIsChosen)
{
    panel().noteRun(L"Circle");
    panel().noteRun(L"Line");
    choose(recent(1));
    click("save");
    typeName("round");
    EXPECT_EQ(content(), "round = Circle\n");
}

TEST_F(Saved, AreRenamedInPlace)
{
    write("# mine\npipes = Layer = PIPES\nall = @pipes or Circle\n");
    choose(saved(0));
    click("rename");
    typeName("tubes");
    EXPECT_EQ(content(), "# mine\ntubes = Layer = PIPES\nall = @tubes or Circle\n");
    EXPECT_EQ(names(), (QStringList{"tubes", "all"}));
}

TEST_F(Saved, KeepANameThatCantBeChanged)
{
    write("pipes = Layer = PIPES\nall = Circle\n");
    const std::string before = content();
    choose(saved(0));
    click("rename");
    typeName("all");
    EXPECT_EQ(problem(), "there is a filter \"all\" already");
    EXPECT_TRUE(QTest::qWaitFor([this] {
        return names() == QStringList{"pipes", "all"};
    })) << names().join(' ').toStdString();
    EXPECT_EQ(content(), before);
}

TEST_F(Saved, AreDeletedByAButtonAndAKey)
{
    write("# mine\na = Circle\nb = Line\nno filter\n");
    choose(saved(0));
    click("delete");
    EXPECT_EQ(content(), "# mine\nb = Line\nno filter\n");
    choose(saved(0));
    QTest::keyClick(&list(), Qt::Key_Delete);
    EXPECT_EQ(content(), "# mine\nno filter\n");
    EXPECT_TRUE(names().isEmpty());
}

TEST_F(Saved, StayWhileOthersNameThem)
{
    write("a = Circle\nb = not @a\n");
    choose(saved(0));
    click("delete");
    EXPECT_EQ(problem(), "the filter \"b\" names \"a\"");
    EXPECT_EQ(names(), (QStringList{"a", "b"}));
}

TEST_F(Saved, TellOfALineThatIsWrong)
{
    write("a = Circle\nb = (Circle\n");
    EXPECT_EQ(names(), QStringList{"a"});
    EXPECT_EQ(problem(), QString::fromStdString(m_file.string()) +
                             ":2: this bracket is never closed\n  (Circle\n  ^");
}

TEST_F(Saved, FollowTheFileWhenItChanges)
{
    write("a = Circle\n");
    EXPECT_EQ(names(), QStringList{"a"});
    replace("a = Circle\nb = Line\n");
    waitFor([this] { return names().size() == 2; });
    write("c = Line\nwrong\n");
    waitFor([this] { return names() == QStringList{"c"}; });
    EXPECT_TRUE(problem().contains(":2: a line is a name")) << problem().toStdString();
    replace("c = Line\n");
    waitFor([this] { return problem().isEmpty(); });
    std::filesystem::remove(m_file);
    waitFor([this] { return names().isEmpty(); });
}

TEST_F(Saved, ComeWhenTheFileComes)
{
    EXPECT_TRUE(names().isEmpty());
    write("a = Circle\n");
    waitFor([this] { return names() == QStringList{"a"}; });
}

TEST_F(Saved, ShowTheLastTenRuns)
{
    for (int i = 0; i < 12; ++i)
        panel().noteRun(L"Circle: Radius > " + std::to_wstring(i));
    panel().noteRun(L"Circle: Radius > 5");
    ASSERT_EQ(recents().size(), 10);
    EXPECT_EQ(recents().first(), "Circle: Radius > 5");
    EXPECT_EQ(recents().at(1), "Circle: Radius > 11");
    EXPECT_EQ(recents().count("Circle: Radius > 5"), 1);
    closePanel();
    EXPECT_EQ(recents().size(), 10) << "also in the next program";
    choose(recent(1));
    click("run");
    EXPECT_THAT(asked, ElementsAre("Circle: Radius > 11"));
}

TEST_F(Saved, KeepAMessageWhenOtherFilesOfTheFolderChange)
{
    write("a = Circle\n");
    panel().tell("can't be run here");
    panel().noteRun(L"Line");
    QTest::qWait(150);
    EXPECT_EQ(problem(), "can't be run here");
}

} // namespace
