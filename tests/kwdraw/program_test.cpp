// The program itself, as it is started from a terminal.
#include <gtest/gtest.h>

#include <QProcess>
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

TEST(Program, TellsItsVersion)
{
    const Outcome outcome = run({"--version"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_TRUE(outcome.out.contains('.'));
}

TEST(Program, TellsItsOptions)
{
    const Outcome outcome = run({"--help"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_TRUE(outcome.out.contains("--layout"));
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
