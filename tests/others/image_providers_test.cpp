#include "support.h"

#include <numbers>

using namespace provider_test;
using testing::ElementsAre;

namespace {

constexpr double kPi = std::numbers::pi;

class ImageProviders : public LoneProviders
{
  protected:
    ImageProviders()
        : definition(addObject<KdDbRasterImageDef>(L"ACAD_IMAGE_DICT", L"plan")),
          image(add<KdDbRasterImage>())
    {
        change(definition, [](RasterImageDefMembers& members) {
            members.sourceFileName = L"maps/plan.png";
            members.size = {400, 200};
            members.pixelSize = {0.25, 0.5};
            members.unit = RasterImageDefMembers::ResolutionUnit::Centimeter;
        });
        change(image, [this](RasterImageMembers& members) {
            fill(members);
            members.definition = definition->objectId();
        });
        setHeader(L"INSUNITS", 4);
    }
    static void fill(RasterImageMembers& members)
    {
        members.origin = {1, 2, 3};
        members.pixelU = {0, -0.5, 0};
        members.pixelV = {0.5, 0, 0};
        members.size = {400, 200};
        members.brightness = 60;
        members.contrast = 40;
        members.fade = 10;
        members.displayOptions = 1 | 8;
    }

    KdDbRasterImageDef* definition;
    KdDbRasterImage* image;
    KdDbRasterImage_Extension provider;
};

const std::vector<ExpectedRow> kBeforeFile = {
    {77474, L"Image adjustment::Brightness", false, "280 60"},
    {77475, L"Image adjustment::Contrast", false, "280 40"},
    {77476, L"Image adjustment::Fade", false, "280 10"},
    {77477, L"Geometry:Position", false, "5009 1,2,3"},
    {77478, L"Geometry:Rotation", false, "5004 1.5708"},
    {77479, L"Geometry:Width", false, "5001 200"},
    {77480, L"Geometry:Height", false, "5001 100"},
    {77481, L"Geometry:Scale", false, "5001 2"},
};
const std::vector<ExpectedRow> kOfFile = {
    {77482, L"Misc::Name", true, "5005 plan"},
    {77483, L"Misc::Path", false, "5005 maps/plan.png", tagged(2)},
};
const std::vector<ExpectedRow> kBehindFile = {
    {77484, L"Misc::Show image", false, "290 true"},
    {77485, L"Misc::Clipping", false, "290 false"},
    {77486, L"Misc::Transparency", false, "290 true"},
};

std::vector<ExpectedRow> joined(std::initializer_list<std::vector<ExpectedRow>> parts)
{
    std::vector<ExpectedRow> all;
    for (const auto& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

TEST_F(ImageProviders, TellPlaceFileAndDisplayOfAnImage)
{
    expectProvider<KdDbRasterImage_Extension>(*image, joined({kBeforeFile, kOfFile, kBehindFile}));
}

TEST_F(ImageProviders, MeasureTheTurnOfAnImageWithoutItsSense)
{
    const std::pair<KdGeVector3d, double> kRows[] = {
        {{1, 0, 0}, 0}, {{0, 2, 0}, kPi / 2}, {{-3, 0, 0}, kPi}, {{1, -1, 0}, kPi / 4}};
    for (const auto& row : kRows) {
        change(image, [&](RasterImageMembers& members) { members.pixelU = row.first; });
        ValueChain value;
        EXPECT_EQ(
            provider.PropertyValueGet(image, L"Geometry:Rotation", value.head(), false, false), 1);
        EXPECT_DOUBLE_EQ(value.head()->getDouble(), row.second);
    }
}

TEST_F(ImageProviders, RelateTheScaleToTheSizeOfTheFileInDrawingUnits)
{
    KdGeVector2d scale;
    KdDbRasterImage_Extension::GetScale(image, scale);
    EXPECT_EQ(scale, (KdGeVector2d{2, 1})); // 200 by 100, of 100 by 100 millimetres
    setHeader(L"INSUNITS", 6);
    KdDbRasterImage_Extension::GetScale(image, scale);
    EXPECT_DOUBLE_EQ(scale.x, 2000); // of 0.1 metres
    setHeader(L"INSUNITS", 0);
    KdDbRasterImage_Extension::GetScale(image, scale);
    EXPECT_EQ(scale.x, 2);
}

TEST_F(ImageProviders, TakeThePixelsOfAFileWithoutUnitAsTheyAre)
{
    setHeader(L"INSUNITS", 6);
    change(definition, [](RasterImageDefMembers& members) {
        members.unit = RasterImageDefMembers::ResolutionUnit::None;
        members.pixelSize = {1.0 / 400, 1.0 / 400};
    });
    KdGeVector2d scale;
    KdDbRasterImage_Extension::GetScale(image, scale);
    EXPECT_DOUBLE_EQ(scale.x, 200);
    EXPECT_DOUBLE_EQ(scale.y, 200);
}

TEST_F(ImageProviders, DoWithoutTheFile)
{
    KdDbRasterImage alone;
    fill(alone.edit());
    EXPECT_THAT(ask(provider, &alone, L"Misc::Name").chain, ElementsAre("5005 "));
    EXPECT_THAT(ask(provider, &alone, L"Misc::Path").chain, ElementsAre("5005 "));
    EXPECT_THAT(ask(provider, &alone, L"Geometry:Scale").chain, ElementsAre("5001 200"));
}

TEST_F(ImageProviders, ListNoFileForAWipeoutButAnswerForOne)
{
    KdDbWipeout wipeout;
    fill(wipeout.edit());
    wipeout.edit().displayOptions = 4;
    const auto listed = joined({kBeforeFile, kBehindFile});
    expectListing<KdDbWipeout_Extension>(&wipeout, listed);
    expectListing<KdDbWipeout_Extension>(nullptr, listed);
    const KdDbLine foreign;
    expectRefusals<KdDbWipeout_Extension>(wipeout, foreign, L"Geometry:Width");
    KdDbWipeout_Extension ofWipeouts;
    EXPECT_THAT(ask(ofWipeouts, &wipeout, L"Misc::Name").chain, ElementsAre("5005 "));
    EXPECT_THAT(ask(ofWipeouts, &wipeout, L"Misc::Clipping").chain, ElementsAre("290 true"));
    EXPECT_THAT(ask(ofWipeouts, image, L"Misc::Name").chain, ElementsAre("5005 plan"));
}

} // namespace
