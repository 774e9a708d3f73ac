#include "support.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include <QApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLocale>
#include <QProcess>
#include <QStringList>

#include <common/entity_set.h>
#include <common/handle_text.h>
#include <exchange/drawing_reader.h>
#include <platform/resources.h>
#include <support/application.h>
#include <ui/theme.h>

namespace panels_test {

namespace {

[[maybe_unused]] const auto* const kApplication =
    testing::AddGlobalTestEnvironment(new ApplicationAround<QApplication>([] {
        setResourceLanguage("en");
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        kduiApplyColorTheme();
    }));

struct Collected
{
    const std::wstring* type;
    Ids ids;
};

void collect(void* context, const quick_select::Entity& entity)
{
    auto& collected = *static_cast<Collected*>(context);
    if (!collected.type || *collected.type == entity.displayName)
        collected.ids.push_back(entity.id);
}

} // namespace

PanelsTest::PanelsTest()
    : m_sink(kdutSetPrintSink([this](std::wstring_view text) { printed.emplace_back(text); }))
{
    setenv("XDG_CONFIG_HOME", qPrintable(m_folder.path()), 1);
    EXPECT_TRUE(module.load(modulePath())) << module.error();
}

PanelsTest::~PanelsTest()
{
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    kdutSetPrintSink(m_sink);
}

void PanelsTest::open(const std::filesystem::path& name)
{
    drawingFile = std::filesystem::path(KW_EXAMPLES) / name;
    ReadReport report;
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    ASSERT_EQ(readDrawing(drawingFile, drawing, report), eOk) << drawingFile;
    kddbHostApplicationServices()->setWorkingDatabase(drawing.get());
}

void PanelsTest::openMany(int count)
{
    std::ofstream stream(file("many.dxf"));
    stream << "0\nSECTION\n2\nENTITIES\n";
    for (int i = 0; i < count; ++i) {
        const char* layer = i % 2 == 0 ? "A" : "B";
        stream << "0\n"
               << (i % 10 == 0 ? "CIRCLE" : "LINE") << "\n5\n"
               << std::hex << 0x100 + i << std::dec << "\n8\n"
               << layer << "\n10\n0\n20\n"
               << i;
        if (i % 10 == 0)
            stream << "\n40\n2.5\n";
        else
            stream << "\n11\n" << i + 1 << "\n21\n" << i << '\n';
    }
    stream << "0\nENDSEC\n0\nEOF\n";
    stream.close();
    open(file("many.dxf"));
}

Ids PanelsTest::everything() const
{
    Collected collected{nullptr, {}};
    module.listEntities(nullptr, collect, &collected);
    return collected.ids;
}

Ids PanelsTest::ofType(const std::wstring& displayName) const
{
    Collected collected{&displayName, {}};
    module.listEntities(nullptr, collect, &collected);
    return collected.ids;
}

KdDbObjectId PanelsTest::entity(std::uint64_t handle) const
{
    KdDbObjectId id;
    EXPECT_EQ(drawing->getObjectId(id, handle), eOk);
    return id;
}

Ids PanelsTest::selection()
{
    return pickfirstEntities();
}

void PanelsTest::select(const Ids& ids)
{
    setPickfirstEntities(ids);
}

std::vector<std::string> PanelsTest::handles(const Ids& ids)
{
    std::vector<std::string> texts;
    for (const KdDbObjectId id : ids)
        texts.push_back(handleText(id.handle()));
    std::sort(texts.begin(), texts.end());
    return texts;
}

QStringList PanelsTest::kwselect(const QString& shellLine)
{
    QProcess shell;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("PATH", QFileInfo(KW_SELECT).path() + ':' + environment.value("PATH"));
    shell.setProcessEnvironment(environment);
    shell.start("/bin/sh", {"-c", shellLine});
    EXPECT_TRUE(shell.waitForFinished(60000));
    EXPECT_LE(shell.exitCode(), 1) << shell.readAllStandardError().toStdString();
    QStringList lines =
        QString::fromUtf8(shell.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
    lines.sort();
    return lines;
}

std::string PanelsTest::content(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

void waitFor(const std::function<bool()>& condition)
{
    QElapsedTimer since;
    since.start();
    bool isThere = condition();
    while (!isThere && since.elapsed() < 120000) {
        QApplication::processEvents();
        isThere = condition();
    }
    EXPECT_TRUE(isThere);
}

} // namespace panels_test
