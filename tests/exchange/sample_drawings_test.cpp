// Reads the drawings of a test collection that lies beside the sources. Where it is missing, these
// tests do not exist.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <entities/all.h>

#include "made_drawing.h"

namespace fs = std::filesystem;

namespace {

fs::path collection()
{
    const char* stated = std::getenv("KW_SAMPLE_DRAWINGS");
    return stated ? fs::path(stated) : fs::path(KW_SOURCE_DIR) / "../shared/drawings";
}

/// The files of the collection with that extension.
std::vector<std::string> filesOf(const std::string& extension)
{
    std::vector<std::string> names;
    std::error_code missing;
    for (fs::recursive_directory_iterator at(collection(), missing), end; at != end; ++at) {
        if (at->path().extension() == extension)
            names.push_back(fs::relative(at->path(), collection()).string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

ReadDrawing readWhole(const std::string& name)
{
    ReadOptions options;
    options.readAllMembers = true;
    ReadDrawing result;
    result.status = readDrawing(collection() / name, result.database, result.report, options);
    return result;
}

std::string testName(std::string name)
{
    std::replace_if(
        name.begin(), name.end(), [](unsigned char c) { return !std::isalnum(c); }, '_');
    return name;
}

class SampleDrawing : public testing::TestWithParam<std::string>
{
};
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(SampleDrawing);

TEST_P(SampleDrawing, IsRead)
{
    const ReadDrawing drawn = readWhole(GetParam());
    ASSERT_EQ(drawn.status, eOk);
    // One is cut off, one has letters in numbers.
    const bool isInPart =
        GetParam() == "odd/open_section.dxf" || GetParam() == "odd/assorted_badtag.dxf";
    EXPECT_EQ(drawn.report.complete, !isInPart);
    EXPECT_EQ(drawn.database->openCount(), 0);
    EXPECT_TRUE(drawn.record<KdDbLayerTable>(L"0"));
    const bool isEmpty = GetParam() == "odd/blocks_no_name_r12.dxf";
    EXPECT_EQ(drawn.entities().empty(), isEmpty);
    for (const KdDbEntity* entity : drawn.entities()) {
        EXPECT_FALSE(entity->layer().isEmpty());
    }
}

INSTANTIATE_TEST_SUITE_P(Collection, SampleDrawing, testing::ValuesIn(filesOf(".dxf")),
                         [](const auto& row) { return testName(row.param); });

/// What is to be found in drawings that are known to be damaged.
struct DamagedSample
{
    const char* drawing;
    DrawingFinding finding;
};

constexpr DamagedSample kDamaged[] = {
    {"odd/assorted_badtag.dxf", DrawingFinding::BadNumber},
    {"odd/open_section.dxf", DrawingFinding::SectionNotClosed},
    {"odd/recursive_blocks.dxf", DrawingFinding::BlockHoldsItself},
    {"odd/duplicate_handles_r13.dxf", DrawingFinding::HandleIsDoubled},
    {"odd/blocks_no_name_r12.dxf", DrawingFinding::MissingName},
    {"odd/tables_broken_r2018.dxf", DrawingFinding::RecordOutsideTable},
    {"odd/decimal_commas.dxf", DrawingFinding::DecimalComma},
    {"odd/handle_zero_r13.dxf", DrawingFinding::HandleIsZero},
    {"converted/electrical_cjk_r2004_misdeclared.dxf", DrawingFinding::CodePageIsWrong},
};

std::vector<DamagedSample> damagedSamples()
{
    std::vector<DamagedSample> there;
    std::ranges::copy_if(kDamaged, std::back_inserter(there), [](const DamagedSample& sample) {
        return fs::exists(collection() / sample.drawing);
    });
    return there;
}

class DamagedDrawing : public testing::TestWithParam<DamagedSample>
{
};
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(DamagedDrawing);

TEST_P(DamagedDrawing, HasWhatIsWrongWithItReported)
{
    EXPECT_TRUE(readWhole(GetParam().drawing).hasFinding(GetParam().finding));
}

INSTANTIATE_TEST_SUITE_P(Collection, DamagedDrawing, testing::ValuesIn(damagedSamples()),
                         [](const auto& row) { return testName(row.param.drawing); });

/// One drawing in two forms.
struct Twins
{
    std::string text;
    std::string binary;
};

std::vector<Twins> twins()
{
    std::vector<Twins> all;
    const Twins pair{"allkinds/acs_r2018_ascii.dxf", "allkinds/acs_r2018_binary.dxf"};
    if (fs::exists(collection() / pair.text))
        all.push_back(pair);
    return all;
}

class TwinDrawings : public testing::TestWithParam<Twins>
{
};
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(TwinDrawings);

/// The place of each object in the order of the file. Handles don't serve here: some objects are
/// made anew whenever the drawing is saved, so they differ between the two forms.
std::map<KdDbObjectId, std::size_t> placesOf(const KdDbDatabase& database)
{
    std::map<KdDbObjectId, std::size_t> places;
    for (const KdDbObject* object : database.objects())
        places.emplace(object->objectId(), places.size() + 1);
    return places;
}

void expectAlike(const KdDbEntity& a, const KdDbEntity& b)
{
    EXPECT_EQ(a.layer(), b.layer());
    EXPECT_EQ(a.color().color(), b.color().color());
    EXPECT_EQ(a.linetype(), b.linetype());
    EXPECT_EQ(a.linetypeScale(), b.linetypeScale());
    EXPECT_EQ(a.lineWeight(), b.lineWeight());
    EXPECT_EQ(a.transparency(), b.transparency());
    EXPECT_EQ(a.plotStyleName(), b.plotStyleName());
    if (const auto* text = dynamic_cast<const KdDbText*>(&a)) {
        const auto& other = dynamic_cast<const KdDbText&>(b);
        EXPECT_EQ(text->textString(), other.textString());
        EXPECT_NEAR(text->height(), other.height(), 1e-12);
    }
}

TEST_P(TwinDrawings, HoldTheSameObjects)
{
    const ReadDrawing text = readWhole(GetParam().text);
    const ReadDrawing binary = readWhole(GetParam().binary);
    EXPECT_FALSE(text.report.binary);
    EXPECT_TRUE(binary.report.binary);
    const auto& first = text.database->objects();
    const auto& second = binary.database->objects();
    auto firstPlaces = placesOf(*text.database);
    auto secondPlaces = placesOf(*binary.database);
    ASSERT_EQ(first.size(), second.size());
    for (std::size_t i = 0; i < first.size(); ++i) {
        ASSERT_EQ(first[i]->isA(), second[i]->isA()) << i;
        EXPECT_EQ(firstPlaces[first[i]->ownerId()], secondPlaces[second[i]->ownerId()]) << i;
        EXPECT_EQ(firstPlaces[first[i]->extensionDictionary()],
                  secondPlaces[second[i]->extensionDictionary()])
            << i;
        if (const auto* entity = dynamic_cast<const KdDbEntity*>(first[i]))
            expectAlike(*entity, dynamic_cast<const KdDbEntity&>(*second[i]));
    }
}

INSTANTIATE_TEST_SUITE_P(Collection, TwinDrawings, testing::ValuesIn(twins()),
                         [](const auto& row) { return testName(row.param.text); });

class SampleOf : public testing::TestWithParam<std::string>
{
};
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(SampleOf);

TEST_P(SampleOf, DwgIsTurnedAway)
{
    std::unique_ptr<KdDbDatabase> database;
    ReadReport report;
    EXPECT_EQ(readDrawing(collection() / GetParam(), database, report), eBadDrawing);
    EXPECT_GE(report.error.find(L"DWG"), 0);
}

INSTANTIATE_TEST_SUITE_P(Collection, SampleOf, testing::ValuesIn(filesOf(".dwg")),
                         [](const auto& row) { return testName(row.param); });

} // namespace
