#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace {

/// Each start is a process of its own; what they share is the folder of settings.
class TwoStarts : public testing::Test
{
  protected:
    /// What the dialog showed when it came up.
    std::string start(const char* end, const QStringList& controls = {})
    {
        QProcess process;
        begin(process, end, controls);
        return finish(process);
    }
    void begin(QProcess& process, const char* end, const QStringList& controls) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_CONFIG_HOME", m_settings.path());
        environment.insert("LC_ALL", "C.UTF-8");
        process.setProcessEnvironment(environment);
        process.start(KW_SESSION, QStringList{KW_EXAMPLES "/floor_plan.dxf", end} + controls);
    }
    std::string finish(QProcess& process)
    {
        EXPECT_TRUE(process.waitForFinished());
        m_messages = process.readAllStandardError();
        EXPECT_EQ(process.exitCode(), 0) << m_messages.toStdString();
        return process.readAllStandardOutput().trimmed().toStdString();
    }
    QString settingsFile() const { return m_settings.filePath("kwqselect/interface.settings"); }
    void writeSettings(const QByteArray& bytes) const
    {
        QDir(m_settings.path()).mkdir("kwqselect");
        QFile file(settingsFile());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    static QByteArray contentOf(const QString& name)
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    const QStringList m_circles = {"IDC_QSELECT_OBJECT_TYPE_COMBO=Circle",
                                   "IDC_QSELECT_PROPERTIES_LIST=Radius",
                                   "IDC_QSELECT_OPERATOR_COMBO=> Greater Than",
                                   "IDC_QSELECT_VALUE_EDIT=0.1", "IDC_QSELECT_EXCLUDE_BUTTON"};

    QTemporaryDir m_settings;
    QByteArray m_messages; ///< of the last start
};

TEST_F(TwoStarts, RememberWhatWasAccepted)
{
    EXPECT_EQ(start("ok", m_circles), "Multiple|Color||include");
    EXPECT_EQ(start("cancel"), "Circle|Radius|> Greater Than|exclude");
}

TEST_F(TwoStarts, ForgetWhatWasCancelled)
{
    EXPECT_EQ(start("cancel", m_circles), "Multiple|Color||include");
    EXPECT_EQ(start("cancel"), "Multiple|Color||include");
}

TEST_F(TwoStarts, GoOnWithoutSettingsThatAreBroken)
{
    writeSettings("no settings\n");
    EXPECT_EQ(start("ok", m_circles), "Multiple|Color||include");
    EXPECT_EQ(m_messages.count("KwQselect: "), 1);
    EXPECT_TRUE(m_messages.contains("The settings could not be understood; the file now has the "
                                    "ending \".bad\".\n" +
                                    settingsFile().toUtf8() + "\n"));
    EXPECT_EQ(contentOf(settingsFile() + ".bad"), "no settings\n");
    EXPECT_EQ(start("cancel"), "Circle|Radius|> Greater Than|exclude");
    EXPECT_EQ(m_messages.count("KwQselect: "), 0);
}

TEST_F(TwoStarts, LeaveSettingsOfALaterProgramAlone)
{
    const QByteArray later = "# Settings, form 2\n";
    writeSettings(later);
    EXPECT_EQ(start("ok", m_circles), "Multiple|Color||include");
    EXPECT_EQ(m_messages.count("written by a later version"), 1);
    EXPECT_EQ(contentOf(settingsFile()), later);
}

TEST_F(TwoStarts, TellOnceThatNothingCanBeRemembered)
{
    QFile file(m_settings.filePath("kwqselect")); // in the place of the folder
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(start("ok", m_circles), "Multiple|Color||include");
    EXPECT_EQ(m_messages.count("The settings could not be written."), 1);
    EXPECT_EQ(m_messages.count("KwQselect: "), 1);
}

TEST_F(TwoStarts, MayEndAtTheSameTime)
{
    QProcess other;
    begin(other, "ok", m_circles);
    start("ok", m_circles);
    finish(other);
    EXPECT_EQ(start("cancel"), "Circle|Radius|> Greater Than|exclude");
}

} // namespace
