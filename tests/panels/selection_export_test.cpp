#include <kwdraw/panels/selection_export.h>

#include <algorithm>

#include <QApplication>
#include <QClipboard>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStringList>

#include <exchange/drawing_reader.h>

#include "support.h"

using namespace panels_test;
using namespace std::chrono_literals;

namespace {

class Export : public PanelsTest
{
  protected:
    SelectionExport& exporter()
    {
        if (!m_exporter) {
            m_exporter = std::make_unique<SelectionExport>(module, *drawing, drawingFile);
            QObject::connect(m_exporter.get(), &SelectionExport::finished,
                             [this](const QString& told) {
                                 problem = told.toStdString();
                                 ++ends;
                             });
        }
        return *m_exporter;
    }

    /// The sentence with which it ended; empty for a success.
    std::string save(const Ids& ids, const std::filesystem::path& target, ExportOptions options)
    {
        const int before = ends;
        exporter().toFile(ids, target, options);
        waitFor([&] { return ends > before; });
        return problem;
    }
    QString copy(const Ids& ids, ExportOptions options)
    {
        const int before = ends;
        exporter().toClipboard(ids, options);
        waitFor([&] { return ends > before; });
        EXPECT_EQ(problem, "");
        return QApplication::clipboard()->text();
    }
    std::size_t filesInFolder() const
    {
        return static_cast<std::size_t>(
            std::distance(std::filesystem::directory_iterator(folder()), {}));
    }

    std::string problem;
    int ends = 0;

  private:
    std::unique_ptr<SelectionExport> m_exporter;
};

TEST_F(Export, WritesHandlesOneALine)
{
    openMany(3);
    EXPECT_EQ(save(everything(), file("out.txt"), {}), "");
    EXPECT_EQ(content(file("out.txt")), "100\n101\n102\n");
}

TEST_F(Export, WritesColumnsInTheOrderOfTheSelection)
{
    openMany(3);
    Ids ids = everything();
    std::reverse(ids.begin(), ids.end());
    EXPECT_EQ(save(ids, file("out.csv"), {ExportFormat::Csv, {"Handle", "Type", "Start Y"}}), "");
    EXPECT_EQ(content(file("out.csv")),
              "Handle,Type,Start Y\r\n102,Line,2\r\n101,Line,1\r\n100,Circle,\r\n");
}

TEST_F(Export, TakesTheUsualColumnsWithoutOthers)
{
    openMany(1);
    EXPECT_EQ(save(everything(), file("out.csv"), {ExportFormat::Csv}), "");
    EXPECT_EQ(content(file("out.csv")), "Handle,Type,Layer\r\n100,Circle,A\r\n");
}

TEST_F(Export, WritesJsonThatAnotherReaderUnderstands)
{
    openMany(2);
    EXPECT_EQ(
        save(everything(), file("out.json"), {ExportFormat::Json, {"Handle", "Center", "Length"}}),
        "");
    const QJsonArray rows =
        QJsonDocument::fromJson(QByteArray::fromStdString(content(file("out.json")))).array();
    ASSERT_EQ(rows.size(), 2);
    EXPECT_EQ(rows[0].toObject()["Center"].toArray(), (QJsonArray{0.0, 0.0, 0.0}));
    EXPECT_TRUE(rows[0].toObject()["Length"].isNull());
    EXPECT_EQ(rows[1].toObject()["Length"].toDouble(), 2.0);
}

/// Commas, quotes and line ends are in these texts.
TEST_F(Export, WritesTablesThatAnotherProgramReads)
{
    openKinds();
    Ids ids = ofType(L"Text");
    for (const KdDbObjectId id : ofType(L"MText"))
        ids.push_back(id);
    const std::vector<std::string> columns{"Handle", "Contents"};
    ASSERT_EQ(save(ids, file("out.csv"), {ExportFormat::Csv, columns}), "");
    ASSERT_EQ(save(ids, file("out.json"), {ExportFormat::Json, columns}), "");
    QProcess python;
    python.setWorkingDirectory(QString::fromStdString(folder().string()));
    python.start("python3", {"-c", "import csv, json\n"
                                   "rows = list(csv.DictReader(open('out.csv', newline='')))\n"
                                   "assert rows == json.load(open('out.json')), rows\n"
                                   "print(len(rows))"});
    ASSERT_TRUE(python.waitForFinished());
    EXPECT_EQ(python.readAllStandardOutput().trimmed().toInt(), static_cast<int>(ids.size()))
        << python.readAllStandardError().toStdString();
    EXPECT_GE(ids.size(), 2u);
}

TEST_F(Export, WritesADrawingOfTheSelectedAlone)
{
    openMany(20);
    EXPECT_EQ(save(ofType(L"Circle"), file("out.dxf"), {ExportFormat::Drawing}), "");
    std::unique_ptr<KdDbDatabase> written;
    ReadReport report;
    ASSERT_EQ(readDrawing(file("out.dxf"), written, report), eOk);
    EXPECT_EQ(report.entities, 2u);
}

TEST_F(Export, FillsTheClipboard)
{
    openMany(2);
    EXPECT_EQ(copy(everything(), {}), "100\n101\n");
    EXPECT_EQ(copy(everything(), {ExportFormat::Csv, {"Handle"}}), "Handle\r\n100\r\n101\r\n");
    const QByteArray json = copy(everything(), {ExportFormat::Json, {"Type"}}).toUtf8();
    EXPECT_EQ(QJsonDocument::fromJson(json).array().at(1).toObject()["Type"], "Line");
    EXPECT_EQ(copy(everything(), {ExportFormat::Table, {"Handle", "Layer"}}),
              "Handle\tLayer\n100\tA\n101\tB\n");
    EXPECT_EQ(filesInFolder(), 1u) << "the drawing alone";
}

TEST_F(Export, ReplacesAFileOnlyWhenToldTo)
{
    openMany(1);
    save(everything(), file("out.txt"), {});
    const std::string before = content(file("out.txt"));
    EXPECT_EQ(save({}, file("out.txt"), {}),
              file("out.txt").string() + ": The file exists already.");
    EXPECT_EQ(content(file("out.txt")), before);
    ExportOptions options;
    options.overwrite = true;
    EXPECT_EQ(save({}, file("out.txt"), options), "");
    EXPECT_EQ(content(file("out.txt")), "");
}

TEST_F(Export, NeverReplacesTheDrawing)
{
    openMany(1);
    const std::string before = content(drawingFile);
    std::filesystem::create_symlink(drawingFile, file("link.dxf"));
    for (const auto format : {ExportFormat::Csv, ExportFormat::Drawing}) {
        ExportOptions options{format};
        options.overwrite = true;
        for (const auto& target : {drawingFile, file("link.dxf")})
            EXPECT_EQ(save(everything(), target, options),
                      target.string() +
                          ": A drawing can't be written over the file that it comes from.");
    }
    EXPECT_EQ(content(drawingFile), before);
}

TEST_F(Export, TellsInOneSentenceWhatIsWrongWithTheFile)
{
    openMany(1);
    for (const auto format : {ExportFormat::Handles, ExportFormat::Drawing})
        EXPECT_EQ(save(everything(), file("none") / "out", {format}),
                  (file("none") / "out").string() + ": The folder does not exist.");
}

TEST_F(Export, LeavesNothingWhenItIsCancelled)
{
    openMany(20000);
    exporter().toFile(everything(), file("out.csv"), {ExportFormat::Csv});
    ASSERT_TRUE(exporter().isRunning());
    exporter().cancel();
    EXPECT_FALSE(exporter().isRunning());
    EXPECT_EQ(filesInFolder(), 1u);
    EXPECT_EQ(ends, 0);
}

TEST_F(Export, ToldToStopWhileItTellsOfItsProgressStops)
{
    openMany(20000);
    QObject::connect(&exporter(), &SelectionExport::progressed, [this] { exporter().cancel(); });
    exporter().toFile(everything(), file("out.csv"), {ExportFormat::Csv});
    EXPECT_FALSE(exporter().isRunning());
    EXPECT_EQ(filesInFolder(), 1u);
}

TEST_F(Export, OfManyObjectsKeepsTheWindowAwake)
{
    openMany(20000);
    const Ids all = everything();
    int lastDone = 0;
    int slices = 0;
    QObject::connect(&exporter(), &SelectionExport::progressed, [&](int done, int) {
        lastDone = done;
        ++slices;
    });
    exporter().toFile(all, file("out.csv"), {ExportFormat::Csv, {"Handle", "Type", "Layer"}});
    waitFor([&] { return ends == 1; });
    EXPECT_GT(slices, 1);
    EXPECT_EQ(lastDone, 20000);
    const std::string written = content(file("out.csv"));
    EXPECT_EQ(std::count(written.begin(), written.end(), '\n'), 20001);
}

TEST_F(Export, OffersWhatIsShownInCommonAsColumns)
{
    openMany(40);
    PropertyMerge merge(module);
    merge.start(ofType(L"Circle"));
    while (!merge.isDone())
        merge.readOn(1000ms);
    const auto columns = exportColumns(merge.common(nullptr));
    ASSERT_GT(columns.size(), 8u);
    EXPECT_EQ(std::vector<std::string>(columns.begin(), columns.begin() + 4),
              (std::vector<std::string>{"Handle", "Type", "Layer", "Color"}));
    EXPECT_EQ(std::count(columns.begin(), columns.end(), "Layer"), 1);
    EXPECT_EQ(std::count(columns.begin(), columns.end(), "Radius"), 1);
    EXPECT_EQ(exportColumns({}), (std::vector<std::string>{"Handle", "Type", "Layer"}));
}

/// Every column that is offered for an entity has its value in it.
TEST_F(Export, FillsEachColumnThatItOffers)
{
    openKinds();
    PropertyMerge merge(module);
    for (const KdDbObjectId id : everything()) {
        merge.start({id});
        while (!merge.isDone())
            merge.readOn(1000ms);
        const auto common = merge.common(nullptr);
        const auto columns = exportColumns(common);
        const QByteArray json = copy({id}, {ExportFormat::Json, columns}).toUtf8();
        const QJsonObject row = QJsonDocument::fromJson(json).array().at(0).toObject();
        EXPECT_EQ(row.size(), static_cast<int>(columns.size()));
        const auto answered = std::count_if(common.begin(), common.end(), [](const auto& each) {
            return !each.values.empty() && each.values.front().restype != 5000;
        });
        const auto filled = std::count_if(row.begin(), row.end(),
                                          [](const auto& value) { return !value.isNull(); });
        EXPECT_EQ(filled, answered + 2) << json.toStdString(); // the layer is one of both
    }
}

} // namespace
