// All members read by several threads are those that one thread reads, and so are the findings.
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <entities/all.h>

#include "made_drawing.h"

namespace fs = std::filesystem;

namespace {

std::ostream& operator<<(std::ostream& stream, const KdString& text)
{
    for (const wchar_t c : text.view())
        stream << std::hex << static_cast<unsigned>(c) << '.';
    return stream << ' ';
}

std::ostream& operator<<(std::ostream& stream, const KdGePoint3d& point)
{
    return stream << std::hexfloat << point.x << ',' << point.y << ',' << point.z << ' ';
}

void describeText(std::ostream& stream, const KdDbMText& text)
{
    KdString contents;
    text.contents(contents);
    stream << contents << text.textStyle().handle() << ' ' << std::hexfloat << text.width() << ' ';
}

void describeLines(std::ostream& stream, const KdDbMText* lines)
{
    if (lines)
        describeText(stream, *lines);
}

void describeAttribute(std::ostream& stream, const KdDbEntity& entity)
{
    if (const auto* attribute = dynamic_cast<const KdDbAttribute*>(&entity)) {
        stream << attribute->tag() << attribute->lockPositionInBlock() << ' ';
        describeLines(stream, attribute->getMTextAttributeConst());
    }
    if (const auto* definition = dynamic_cast<const KdDbAttributeDefinition*>(&entity)) {
        stream << definition->tag() << definition->prompt() << definition->lockPositionInBlock()
               << ' ';
        describeLines(stream, definition->getMTextAttributeDefinitionConst());
    }
}

void describeSpline(std::ostream& stream, const KdDbSpline& spline)
{
    const KdDbNurbsData data = spline.getNurbsData();
    stream << data.degree << ' ' << std::hexfloat;
    for (const double knot : data.knots)
        stream << knot << ' ';
    for (const KdGePoint3d& point : data.controlPoints)
        stream << point;
    for (const double weight : data.weights)
        stream << weight << ' ';
}

void describeDimension(std::ostream& stream, const KdDbDimension& dimension)
{
    double measured = 0.0;
    dimension.measurement(measured);
    stream << dimension.dimensionText() << dimension.dimBlockId().handle() << ' '
           << dimension.dimensionStyle().handle() << ' ' << dimension.dimscale() << ' '
           << dimension.dimpost() << std::hexfloat << measured << dimension.textPosition();
}

void describeKind(std::ostream& stream, const KdDbEntity& entity)
{
    if (const auto* text = dynamic_cast<const KdDbText*>(&entity))
        stream << text->textString() << text->height() << ' ' << text->textStyle().handle();
    if (const auto* text = dynamic_cast<const KdDbMText*>(&entity))
        describeText(stream, *text);
    describeAttribute(stream, entity);
    if (const auto* spline = dynamic_cast<const KdDbSpline*>(&entity))
        describeSpline(stream, *spline);
    if (const auto* reference = dynamic_cast<const KdDbBlockReference*>(&entity))
        stream << reference->blockTableRecord().handle() << ' ' << reference->rotation();
    if (const auto* line = dynamic_cast<const KdDbLine*>(&entity))
        stream << line->thickness() << ' ' << line->normal().x << ' ' << line->normal().z;
    if (const auto* dimension = dynamic_cast<const KdDbDimension*>(&entity))
        describeDimension(stream, *dimension);
    if (const auto* polyline = dynamic_cast<const KdDbPolyline*>(&entity)) {
        double bulge = 0.0;
        for (unsigned i = 0; polyline->getBulgeAt(i, bulge) == eOk; ++i)
            stream << bulge << ' ';
    }
}

void describeEntity(std::ostream& stream, const KdDbEntity& entity)
{
    stream << entity.layer() << entity.linetype() << entity.plotStyleName() << std::hexfloat
           << entity.linetypeScale() << ' ' << entity.color().color() << ' ' << entity.lineWeight()
           << ' ' << entity.isInvisible() << ' ';
    KdArray<KdGePoint3d> grips;
    entity.getGripPoints(grips);
    for (int i = 0; i < grips.length(); ++i)
        stream << grips[i];
    KdGeExtents3d extents;
    if (entity.getGeomExtents(extents) == eOk)
        stream << extents.minPoint << extents.maxPoint;
    describeKind(stream, entity);
}

/// A line for each object, with what it can tell.
std::string describe(const KdDbDatabase& database)
{
    std::ostringstream stream;
    for (const KdDbObject* object : database.objects()) {
        stream << std::hex << object->handle() << ' ' << KdString(object->isA()->name())
               << object->ownerId().handle() << ' ' << object->extensionDictionary().handle();
        for (const KdDbObjectId reactor : object->reactors())
            stream << " r" << reactor.handle();
        const resbuf* end = nullptr;
        for (const resbuf* record = object->extendedData(nullptr, end); record != end;
             record = record->rbnext)
            stream << " x" << record->restype;
        stream << ' ';
        if (const auto* entity = dynamic_cast<const KdDbEntity*>(object))
            describeEntity(stream, *entity);
        stream << '\n';
    }
    return stream.str();
}

std::string describe(const ReadReport& report)
{
    std::ostringstream stream;
    for (const ReadFinding& finding : report.findings)
        stream << finding.number << " in " << finding.line << " of " << finding.handle << ": "
               << finding.sentence << '\n';
    stream << report.totalFindings << (report.complete ? " complete" : " in part");
    return stream.str();
}

ReadOptions inThreads(unsigned threads)
{
    ReadOptions options;
    options.readAllMembers = true;
    options.threads = threads;
    return options;
}

void expectTheSame(const fs::path& file)
{
    ReadDrawing alone;
    alone.status = readDrawing(file, alone.database, alone.report, inThreads(1));
    for (const unsigned threads : {2u, 5u}) {
        ReadDrawing together;
        std::vector<std::string> told;
        ReadOptions options = inThreads(threads);
        options.found = [&](const ReadFinding& finding) {
            std::ostringstream line;
            line << finding.number << ' ' << finding.line;
            told.push_back(line.str());
        };
        together.status = readDrawing(file, together.database, together.report, options);
        ASSERT_EQ(together.status, alone.status);
        EXPECT_EQ(describe(together.report), describe(alone.report));
        EXPECT_EQ(told.size(), alone.report.totalFindings);
        if (alone.database) {
            EXPECT_EQ(describe(*together.database), describe(*alone.database));
        }
    }
}

/// Entities of all kinds that are read beside each other, of others between them, and some that are
/// damaged or name what is not there; all in an order that repeats after a prime number of them.
std::string mixedDrawing(std::size_t entities)
{
    const std::vector<std::string> kinds = {
        "0\nLINE\n8\nA\n6\nDASHED\n10\n1.5\n20\n2.25\n11\n7\n21\n-3.125\n39\n2.0\n",
        "0\nCIRCLE\n8\nB\n48\n2.5\n10\n1.5\n20\n2.25\n40\n7\n210\n0\n220\n0\n230\n-1\n",
        "0\nARC\n8\nB\n62\n3\n10\n1\n20\n2\n40\n7\n50\n10\n51\n75.5\n",
        "0\nTEXT\n8\nA\n10\n1\n20\n2\n40\n3\n1\nsome words\n7\nSTANDARD\n",
        "0\nTEXT\n8\nA\n10\n1\n20\n2\n40\n3\n1\nM\xC3\xA4rz\n7\nNOT THERE\n",
        "0\nPOINT\n8\nA\n10\n1\n20\n2\n",
        "0\nLWPOLYLINE\n8\nA\n90\n3\n70\n1\n10\n1\n20\n2\n42\n0.5\n10\n3\n20\n4\n10\n5\n20\n0\n",
        "0\nINSERT\n8\nA\n2\nDOOR\n10\n1\n20\n2\n50\n30\n",
        "0\nINSERT\n8\nA\n2\nNO BLOCK\n10\n1\n20\n2\n",
        "0\nINSERT\n8\nA\n66\n1\n2\nDOOR\n10\n4\n20\n2\n0\nATTRIB\n8\nA\n10\n0\n20\n0\n40\n2\n"
        "1\nvalue\n2\nTAG\n70\n0\n0\nSEQEND\n8\nA\n",
        "0\nSOLID\n8\nA\n10\n0\n20\n0\n11\n1\n21\n0\n12\n0\n22\n1\n13\n1\n23\n1\n",
        "0\n3DFACE\n8\nA\n10\n0\n20\n0\n11\n1\n21\n0\n12\n0\n22\n1\n13\n1\n23\n1\n",
        "0\nMTEXT\n8\nA\n10\n0\n20\n0\n40\n2\n1\nline\\Pline\n",
        "0\nSPLINE\n8\nA\n70\n8\n71\n3\n11\n0\n21\n0\n11\n4\n21\n1\n11\n6\n21\n5\n",
        "0\nLINE\n8\nA\n10\n1mm\n20\n2,5\n390\nXY\n",
        "0\nLINE\n8\nA\n6\nNOT THERE\n10\n1\n20\n2\n11\n3\n21\n4\n",
        "0\nPOLYLINE\n8\nA\n70\n0\n0\nVERTEX\n8\nA\n10\n1\n20\n1\n0\nVERTEX\n8\nA\n10\n2\n20\n"
        "3\n0\nSEQEND\n8\nA\n",
        "0\nLINE\n8\nA\n1001\nAPP\n1000\nattached\n1070\n3\n",
        "0\nHATCH\n8\nA\n10\n0\n20\n0\n30\n1."
        "5\n2\nSOLID\n70\n1\n71\n0\n91\n1\n92\n2\n72\n0\n73\n1\n93\n"
        "3\n10\n0\n20\n0\n10\n4\n20\n0\n10\n4\n20\n4\n97\n0\n75\n0\n76\n1\n98\n0\n",
    };
    std::string text =
        "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1015\n9\n$DWGCODEPAGE\n3\nANSI_1252\n"
        "0\nENDSEC\n0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n8\n0\n2\nDOOR\n70\n0\n10\n0\n20\n0\n0\n"
        "LINE\n8\n0\n10\n0\n20\n0\n11\n1\n21\n1\n0\nENDBLK\n0\nENDSEC\n0\nSECTION\n2\n"
        "ENTITIES\n";
    for (std::size_t i = 0; i < entities; ++i)
        text += kinds[i * 7 % kinds.size()];
    return text + "0\nENDSEC\n0\nEOF\n";
}

Groups operator+(Groups a, const Groups& b)
{
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

/// Handles of an entity, and of what belongs to it.
class Handles
{
  public:
    explicit Handles(std::size_t number) : m_first(0x1000 + 16 * number) {}
    std::string operator()(unsigned which) const
    {
        std::ostringstream stream;
        stream << std::hex << m_first + which;
        return stream.str();
    }

  private:
    std::size_t m_first;
};

Groups entity(const char* name, const Handles& handles, const Groups& rest)
{
    return Groups{{0, name}, {5, handles(0)}, {100, "AcDbEntity"}, {8, "A"}} + rest;
}

Groups definition(const Handles& handles, const Groups& rest)
{
    return entity("ATTDEF", handles,
                  Groups{{100, "AcDbText"}, {10, "1.5"}, {20, "2"}, {40, "0.25"}, {1, "one"}} +
                      Groups{{100, "AcDbAttributeDefinition"}, {3, "Ask"}, {2, "TAG"}} + rest);
}

Groups extended(const Handles& handles)
{
    return entity("ATTDEF", handles,
                  {{102, "{ACAD_XDICTIONARY"},
                   {360, handles(1)},
                   {102, "}"},
                   {100, "AcDbText"},
                   {1, "one"},
                   {100, "AcDbAttributeDefinition"},
                   {2, "TAG"}});
}

/// A dictionary that extends a definition, and its only entry.
Groups extension(const Handles& handles, const std::string& entry)
{
    return {{0, "DICTIONARY"},       {5, handles(1)},   {330, handles(0)},
            {100, "AcDbDictionary"}, {3, "ACAD_MLATT"}, {360, entry}};
}

Groups linesOf(const Handles& handles)
{
    return {{0, "XRECORD"}, {5, handles(2)}, {100, "AcDbXrecord"}, {1, "Embedded Object"},
            {10, "1"},      {20, "2"},       {41, "12.5"},         {1, "several\\Plines"}};
}

const Groups kPoints = {{13, "1"}, {23, "2"}, {14, "7.5"}, {24, "2"}, {10, "7.5"}, {20, "4"}};

Groups dimension(const Handles& handles, const Groups& head, const Groups& tail)
{
    return entity("DIMENSION", handles,
                  Groups{{100, "AcDbDimension"}, {2, "DOOR"}, {70, "0"}} + head +
                      Groups{{100, "AcDbAlignedDimension"}} + kPoints +
                      Groups{{100, "AcDbRotatedDimension"}} + tail);
}

/// What most of a kind do not need: to look into other objects, or to have one made.
class KindsThatMayLookElsewhere
{
  public:
    explicit KindsThatMayLookElsewhere(std::size_t entities)
    {
        for (std::size_t i = 0; i < entities; ++i)
            add(i % 12, Handles(i), Handles(i + 1));
    }

    std::string text() const
    {
        return asText(drawing(
            {header("AC1021"), section("ENTITIES", m_entities), section("OBJECTS", m_objects)}));
    }

  private:
    void add(std::size_t kind, const Handles& own, const Handles& next)
    {
        m_entities = std::move(m_entities) + made(kind, own, next);
        if (kind == 1)
            m_objects = std::move(m_objects) + extension(own, own(2)) + linesOf(own);
        if (kind == 2) // names an entity where a record should be
            m_objects = std::move(m_objects) + extension(own, next(0));
    }

    static Groups made(std::size_t kind, const Handles& own, const Handles& next)
    {
        switch (kind) {
        case 0:
            return definition(own, {{1001, "AcDbAttr"}, {1070, "0"}, {1070, "1"}});
        case 1:
        case 2:
            return extended(own);
        case 3:
            return entity("LINE", own, {{62, "3"}, {48, "2.5"}, {10, "1"}, {20, "2"}});
        case 4:
            return dimension(own, {{3, "STANDARD"}}, {});
        case 5: // the style is missing and is made, which is no finding
            return dimension(own, {}, {{50, "90"}});
        case 6:
            return dimension(own, {{3, "NOT THERE"}, {1, "about <>"}}, {});
        case 7:
            return dimension(own, {},
                             {{1001, "ACAD"},
                              {1000, "DSTYLE"},
                              {1002, "{"},
                              {1070, "40"},
                              {1040, "2.5"},
                              {1070, "3"},
                              {1000, "<>mm"},
                              {1002, "}"}});
        case 8: // with a column behind it
            return entity("MTEXT", own,
                          {{100, "AcDbMText"},
                           {1, "One\\P"},
                           {1001, "ACAD"},
                           {1000, "ACAD_MTEXT_COLUMNS_BEGIN"},
                           {1070, "47"},
                           {1070, "2"},
                           {1005, next(0)},
                           {1000, "ACAD_MTEXT_COLUMNS_END"}});
        case 9:
            return entity("MTEXT", own, {{100, "AcDbMText"}, {41, "30"}, {1, "Two"}});
        case 10: // with its control points
            return entity("SPLINE", own,
                          {{100, "AcDbSpline"},
                           {70, "8"},
                           {71, "1"},
                           {72, "4"},
                           {73, "2"},
                           {40, "0"},
                           {40, "0"},
                           {40, "1"},
                           {40, "1"},
                           {10, "1"},
                           {20, "2"},
                           {10, "3.25"},
                           {20, "4"}});
        default: // with the points that it goes through alone
            return entity("SPLINE", own,
                          {{100, "AcDbSpline"},
                           {70, "8"},
                           {71, "3"},
                           {74, "3"},
                           {11, "0"},
                           {21, "0"},
                           {11, "4"},
                           {21, "1"},
                           {11, "6"},
                           {21, "5"}});
        }
    }

    Groups m_entities;
    Groups m_objects;
};

TEST(WholeReading, GivesTheSameForKindsThatMayLookElsewhere)
{
    const TemporaryFile file(KindsThatMayLookElsewhere(4000).text());
    expectTheSame(file.path());
}

TEST(WholeReading, GivesTheSameInAnyNumberOfThreads)
{
    const TemporaryFile file(mixedDrawing(6000));
    expectTheSame(file.path());
}

TEST(WholeReading, GivesTheSameWhereHardlyAnythingIsGood)
{
    std::string text = mixedDrawing(3000);
    for (std::size_t i = 300; i < text.size(); i += 97) {
        if (text[i] >= '0' && text[i] <= '9')
            text[i] = 'x';
    }
    const TemporaryFile file(text);
    expectTheSame(file.path());
}

TEST(WholeReading, GivesTheSameForSmallDrawings)
{
    for (const std::size_t entities : {0u, 1u, 30u}) {
        const TemporaryFile file(mixedDrawing(entities));
        expectTheSame(file.path());
    }
}

TEST(WholeReading, StopsInAllThreadsWhenCancelled)
{
    const TemporaryFile file(mixedDrawing(6000));
    ReadOptions options = inThreads(4);
    options.progress = [](double part) { return part < 0.55; };
    ReadDrawing drawn;
    drawn.status = readDrawing(file.path(), drawn.database, drawn.report, options);
    EXPECT_EQ(drawn.status, eUserBreak);
    EXPECT_FALSE(drawn.database);
}

fs::path collection()
{
    const char* stated = std::getenv("KW_SAMPLE_DRAWINGS");
    return stated ? fs::path(stated) : fs::path(KW_SOURCE_DIR) / "../shared/drawings";
}

std::vector<std::string> samples()
{
    std::vector<std::string> files;
    std::error_code missing;
    for (fs::recursive_directory_iterator at(collection(), missing), end; at != end; ++at) {
        if (at->path().extension() == ".dxf")
            files.push_back(at->path().string());
    }
    return files;
}

class SampleInThreads : public testing::TestWithParam<std::string>
{
};

TEST_P(SampleInThreads, GivesTheSame)
{
    expectTheSame(GetParam());
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(SampleInThreads);
INSTANTIATE_TEST_SUITE_P(Collection, SampleInThreads, testing::ValuesIn(samples()),
                         [](const auto& row) {
                             std::string name;
                             for (const char c : fs::path(row.param).stem().string())
                                 name.push_back(std::isalnum(static_cast<unsigned char>(c)) ? c
                                                                                            : '_');
                             return name + std::to_string(row.index);
                         });

} // namespace
