// The program itself, as it is started from a terminal.
#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

namespace {

struct Outcome
{
    int status = -1;
    QByteArray out;
    QByteArray err;
};

Outcome run(const QStringList& arguments)
{
    const QTemporaryDir settings;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_CONFIG_HOME", settings.path());
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(KW_PROGRAM, arguments);
    process.waitForFinished();
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

QSet<QString> wordsIn(const QByteArray& text, const char* pattern)
{
    QSet<QString> words;
    auto match = QRegularExpression(pattern).globalMatch(text);
    while (match.hasNext())
        words << match.next().captured(1);
    return words;
}

TEST(Program, TellsItsVersion)
{
    const Outcome outcome = run({"--version"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_TRUE(QRegularExpression(R"(^kwdraw \d+\.\d+\.\d+\n$)").match(outcome.out).hasMatch());
}

TEST(Program, TellsTheOptionsOfItsManualPage)
{
    QFile page(KW_SOURCE_DIR "/packaging/man/kwdraw.1");
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    const Outcome outcome = run({"--help"});
    EXPECT_EQ(outcome.status, 0);
    const QSet<QString> told = wordsIn(outcome.out, "--([a-z]+)");
    EXPECT_TRUE(told.contains("layout"));
    EXPECT_EQ(told, wordsIn(page.readAll(), "Fl -([a-z]+)"));
}

TEST(Program, RefusesColorsThatThereAreNot)
{
    EXPECT_EQ(run({"--colors", "green"}).status, 2);
}

TEST(Program, TakesOneDrawingAlone)
{
    EXPECT_EQ(run({"a.dxf", "b.dxf"}).status, 2);
}

TEST(Program, TakesALayoutOnlyWithADrawing)
{
    EXPECT_EQ(run({"--layout", "Model"}).status, 2);
}

} // namespace
