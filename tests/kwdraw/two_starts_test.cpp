#include <gtest/gtest.h>

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
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_CONFIG_HOME", m_settings.path());
        environment.insert("LC_ALL", "C.UTF-8");
        process.setProcessEnvironment(environment);
        process.start(KW_SESSION, QStringList{KW_EXAMPLES "/floor_plan.dxf", end} + controls);
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
        return process.readAllStandardOutput().trimmed().toStdString();
    }
    const QStringList m_circles = {"IDC_QSELECT_OBJECT_TYPE_COMBO=Circle",
                                   "IDC_QSELECT_PROPERTIES_LIST=Radius",
                                   "IDC_QSELECT_OPERATOR_COMBO=> Greater Than",
                                   "IDC_QSELECT_VALUE_EDIT=0.1", "IDC_QSELECT_EXCLUDE_BUTTON"};

    QTemporaryDir m_settings;
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

} // namespace
