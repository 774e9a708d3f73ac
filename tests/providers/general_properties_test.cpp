#include <database/hyperlink.h>
#include <database/support.h>
#include <entities/circle.h>

#include "support.h"

using namespace provider_test;
using database_test::ExtendedData;
using testing::ElementsAre;
using testing::ElementsAreArray;

namespace {

using Words = std::vector<std::string>;

constexpr const wchar_t* kColor = L"\tGeneral:Color";
constexpr const wchar_t* kLayer = L"\tGeneral:Layer";
constexpr const wchar_t* kLinetype = L"\tGeneral:Linetype";
constexpr const wchar_t* kLinetypeScale = L"\tGeneral:Linetype scale";
constexpr const wchar_t* kPlotStyle = L"\tGeneral:Plot style";
constexpr const wchar_t* kLineweight = L"\tGeneral:Lineweight";
constexpr const wchar_t* kTransparency = L"\tGeneral:Transparency";
constexpr const wchar_t* kHyperlink = L"\tGeneral:Hyperlink";

const Words kMillimetres = {
    "5005 0.00 mm", "5005 0.05 mm", "5005 0.09 mm", "5005 0.13 mm", "5005 0.15 mm", "5005 0.18 mm",
    "5005 0.20 mm", "5005 0.25 mm", "5005 0.30 mm", "5005 0.35 mm", "5005 0.40 mm", "5005 0.50 mm",
    "5005 0.53 mm", "5005 0.60 mm", "5005 0.70 mm", "5005 0.80 mm", "5005 0.90 mm", "5005 1.00 mm",
    "5005 1.06 mm", "5005 1.20 mm", "5005 1.40 mm", "5005 1.58 mm", "5005 2.00 mm", "5005 2.11 mm",
    "5005 ByLayer", "5005 ByBlock", "5005 Default"};

Words joined(Words head, const Words& tail)
{
    head.insert(head.end(), tail.begin(), tail.end());
    return head;
}

/// A circle that has a value of its own for every property.
class GeneralProperties : public ProviderTest
{
  protected:
    GeneralProperties()
    {
        setVariable(L"LWUNITS", 1);
        change(circle, [this](CircleMembers& members) {
            members.color = 0xC3000001;
            members.linetype = drawing.findOrAddRecord<KdDbLinetypeTable>(L"HIDDEN");
            members.seldom.edit().linetypeScale = 2.5;
            members.lineweight = 25;
            members.seldom.edit().transparency = 0x02000080;
            members.extendedData =
                ExtendedData().text(1001, L"PE_URL").text(1000, L"https://a.example/").take();
        });
        KdDbCircle* opened = nullptr;
        EXPECT_EQ(kddbOpenObject(opened, circle->objectId(), KdDb::kForWrite), eOk);
        opened->setLayer(drawing.findOrAddRecord<KdDbLayerTable>(L"PIPES"));
        opened->close();
    }
    ~GeneralProperties() override { setVariable(L"LWUNITS", 1); }

    Answer answer(const wchar_t* key, bool asDisplayText = false, bool withChoices = false)
    {
        return ask(provider, circle, key, asDisplayText, withChoices);
    }
    Words chain(const wchar_t* key, bool asDisplayText = false, bool withChoices = false)
    {
        const Answer given = answer(key, asDisplayText, withChoices);
        EXPECT_EQ(given.status, 1);
        return given.chain;
    }
    Words transparencyOf(std::uint32_t word)
    {
        change(circle,
               [word](CircleMembers& members) { members.seldom.edit().transparency = word; });
        return chain(kTransparency);
    }
    void addPlotStyle(const wchar_t* name)
    {
        auto* style = new KdDbPlaceHolder;
        KdDbDictionary* styles = nullptr;
        ASSERT_EQ(drawing.getPlotStyleNameDictionary(styles, KdDb::kForWrite), eOk);
        drawing.addObject(style, styles->objectId());
        EXPECT_EQ(styles->setAt(name, style->objectId()), eOk);
        styles->close();
    }

    KdDbEntityPE provider;
    KdDbCircle* circle = add<KdDbCircle>();
};

TEST_F(GeneralProperties, AreEightInThisOrder)
{
    const Listing listing = list(provider, circle);
    EXPECT_EQ(listing.status, 0);
    EXPECT_THAT(listing.keys, ElementsAre(L"\tGeneral:Color", L"\tGeneral:Layer",
                                          L"\tGeneral:Linetype", L"\tGeneral:Linetype scale",
                                          L"\tGeneral:Plot style", L"\tGeneral:Lineweight",
                                          L"\tGeneral:Transparency", L"\tGeneral:Hyperlink"));
}

TEST_F(GeneralProperties, AreListedWithoutAnEntityToo)
{
    EXPECT_EQ(list(provider, nullptr).keys, list(provider, circle).keys);
}

TEST_F(GeneralProperties, AreAppendedToWhatTheListsHoldAlready)
{
    KdArray<KdString> names;
    KdArray<bool> flags;
    names.append(L"first");
    flags.append(true);
    provider.PropertyCount(circle, names, flags);
    EXPECT_EQ(names.length(), 9);
    EXPECT_EQ(flags.length(), 9);
    EXPECT_EQ(names[0], L"first");
}

TEST_F(GeneralProperties, CanAllBeSetWhilePlotStylesGoByName)
{
    setHeader(L"PSTYLEMODE", 0);
    EXPECT_THAT(list(provider, circle).flags, ElementsAreArray(std::vector<bool>(8, false)));
}

TEST_F(GeneralProperties, HaveAFixedPlotStyleWhilePlotStylesGoByColor)
{
    setHeader(L"PSTYLEMODE", 1);
    EXPECT_THAT(list(provider, circle).flags,
                ElementsAre(false, false, false, false, true, false, false, false));
}

struct AnswerRow
{
    const char* name;
    const wchar_t* key;
    Words plain;
    Words withChoices;
    Words asText;
    Words asTextWithChoices;
};

const Words kStyles = {"5005 ByLayer", "5005 ByLayer", "5005 ByBlock", "5005 Normal",
                       "5005 Other..."};

const AnswerRow kAnswers[] = {
    {"color", kColor, {"5011 color 1"}, {"5011 color 1"}, {"5011 color 1"}, {"5011 color 1"}},
    {"layer", kLayer, {"8 PIPES"}, {"8 PIPES"}, {"5005 PIPES"}, {"5005 PIPES"}},
    {"linetype",
     kLinetype,
     {"6 HIDDEN"},
     {"6 HIDDEN"},
     {"5005 HIDDEN"},
     {"5005 HIDDEN", "5005 ByBlock", "5005 ByLayer", "5005 Continuous", "5005 HIDDEN"}},
    {"linetypeScale",
     kLinetypeScale,
     {"48 2.5"},
     {"48 2.5", "280 0"},
     {"5005 2.5000"},
     {"5005 2.5000", "280 0"}},
    {"plotStyle", kPlotStyle, {"5005 ByLayer"}, kStyles, {"5005 ByLayer"}, kStyles},
    {"lineweight",
     kLineweight,
     {"370 0.25 mm"},
     {"370 0.25 mm"},
     {"5005 0.25 mm"},
     joined({"5005 0.25 mm"}, kMillimetres)},
    {"transparency", kTransparency, {"441 49"}, {"441 49"}, {"441 49"}, {"441 49"}},
    {"hyperlink",
     kHyperlink,
     {"5005 https://a.example/"},
     {"5005 https://a.example/", "280 2"},
     {"5005 https://a.example/"},
     {"5005 https://a.example/", "280 2"}},
};

class EachGeneralProperty : public GeneralProperties, public testing::WithParamInterface<AnswerRow>
{
};

TEST_P(EachGeneralProperty, IsAnsweredWithOneRecordInItsTypedForm)
{
    EXPECT_EQ(chain(GetParam().key, false, false), GetParam().plain);
}

TEST_P(EachGeneralProperty, IsAnsweredWithWhatAccompaniesIt)
{
    EXPECT_EQ(chain(GetParam().key, false, true), GetParam().withChoices);
}

TEST_P(EachGeneralProperty, IsAnsweredForDisplay)
{
    EXPECT_EQ(chain(GetParam().key, true, false), GetParam().asText);
}

TEST_P(EachGeneralProperty, IsAnsweredForDisplayWithWhatAccompaniesIt)
{
    EXPECT_EQ(chain(GetParam().key, true, true), GetParam().asTextWithChoices);
}

INSTANTIATE_TEST_SUITE_P(, EachGeneralProperty, testing::ValuesIn(kAnswers),
                         [](const auto& row) { return row.param.name; });

TEST_F(GeneralProperties, AreNotAnsweredForANullEntity)
{
    for (const AnswerRow& row : kAnswers) {
        const Answer given = ask(provider, nullptr, row.key);
        EXPECT_EQ(given.status, 0);
        EXPECT_THAT(given.chain, ElementsAre("5000 nothing"));
    }
}

TEST_F(GeneralProperties, AreAnsweredToNoOtherKey)
{
    for (const wchar_t* key : {L"", L"General:Color", L"\tGeneral:color", L"\tGeneral:Colo",
                               L"\tGeneral:Colors", L"Color"}) {
        const Answer given = answer(key);
        EXPECT_EQ(given.status, 0);
        EXPECT_THAT(given.chain, ElementsAre("5000 nothing"));
    }
}

TEST_F(GeneralProperties, GiveTheLinetypeScaleForDisplayInTheCurrentPrecision)
{
    setHeader(L"LUPREC", 1);
    EXPECT_THAT(chain(kLinetypeScale, true), ElementsAre("5005 2.5"));
}

TEST_F(GeneralProperties, GiveTheLinetypeScaleForDisplayAsADecimalInAllUnits)
{
    constexpr int kArchitectural = 4;
    setHeader(L"LUNITS", kArchitectural);
    EXPECT_THAT(chain(kLinetypeScale, true), ElementsAre("5005 2.5000"));
}

TEST_F(GeneralProperties, OfferNoLinetypeOfAnExternalReference)
{
    KdDbLinetypeTableRecord* foreign = nullptr;
    ASSERT_EQ(kddbOpenObject(foreign, drawing.findOrAddRecord<KdDbLinetypeTable>(L"SITE|DOT"),
                             KdDb::kForWrite),
              eOk);
    foreign->edit().dependent = true;
    foreign->close();
    drawing.findOrAddRecord<KdDbLinetypeTable>(L"ZIGZAG");
    EXPECT_THAT(chain(kLinetype, true, true),
                ElementsAre("5005 HIDDEN", "5005 ByBlock", "5005 ByLayer", "5005 Continuous",
                            "5005 HIDDEN", "5005 ZIGZAG"));
}

TEST_F(GeneralProperties, OfferNoLinetypesWhileTheirTableIsOpenForWrite)
{
    KdDbLinetypeTable* table = nullptr;
    ASSERT_EQ(drawing.getSymbolTable(table, KdDb::kForWrite), eOk);
    EXPECT_THAT(chain(kLinetype, true, true), ElementsAre("5005 HIDDEN"));
    table->close();
}

TEST_F(GeneralProperties, DoNotCountALinetypeAsAnsweredWhoseChoicesNeedADrawing)
{
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    const Answer given = answer(kLinetype, true, true);
    EXPECT_EQ(given.status, 0);
    EXPECT_THAT(given.chain, ElementsAre("5005 HIDDEN"));
    EXPECT_THAT(chain(kLinetype, true, false), ElementsAre("5005 HIDDEN"));
    EXPECT_THAT(chain(kLinetype, false, true), ElementsAre("6 HIDDEN"));
    kddbHostApplicationServices()->setWorkingDatabase(&drawing);
}

TEST_F(GeneralProperties, DoNotCountAPlotStyleAsAnsweredWhoseChoicesNeedADrawing)
{
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    for (const bool asDisplayText : {false, true}) {
        const Answer given = answer(kPlotStyle, asDisplayText, true);
        EXPECT_EQ(given.status, 0);
        EXPECT_THAT(given.chain, ElementsAre("5005 ByLayer"));
    }
    EXPECT_THAT(chain(kPlotStyle), ElementsAre("5005 ByLayer"));
    kddbHostApplicationServices()->setWorkingDatabase(&drawing);
}

TEST_F(GeneralProperties, OfferThePlotStylesOfTheDrawingBehindTheFixedOnes)
{
    addPlotStyle(L"Glossy");
    addPlotStyle(L"Faint");
    EXPECT_THAT(chain(kPlotStyle, false, true),
                ElementsAre("5005 ByLayer", "5005 ByLayer", "5005 ByBlock", "5005 Normal",
                            "5005 Glossy", "5005 Faint", "5005 Other..."));
}

TEST_F(GeneralProperties, OfferAPlotStyleOnceUnlessItDiffersByCase)
{
    addPlotStyle(L"Normal");
    addPlotStyle(L"BYLAYER");
    EXPECT_THAT(chain(kPlotStyle, false, true),
                ElementsAre("5005 ByLayer", "5005 ByLayer", "5005 ByBlock", "5005 Normal",
                            "5005 BYLAYER", "5005 Other..."));
}

TEST_F(GeneralProperties, OfferNoOtherPlotStylesWhereTheDrawingHasNoDictionaryOfThem)
{
    KdDbDatabase bare(KdDbDatabase::Content::Bare);
    kddbHostApplicationServices()->setWorkingDatabase(&bare);
    EXPECT_THAT(chain(kPlotStyle, false, true),
                ElementsAre("5005 ByLayer", "5005 ByLayer", "5005 ByBlock", "5005 Normal"));
    kddbHostApplicationServices()->setWorkingDatabase(&drawing);
}

TEST_F(GeneralProperties, GiveLineweightsInInchesWhileThoseAreTheUnits)
{
    setVariable(L"LWUNITS", 0);
    EXPECT_THAT(chain(kLineweight), ElementsAre("370 0.010\""));
    EXPECT_THAT(chain(kLineweight, true), ElementsAre("5005 0.010\""));
}

TEST_F(GeneralProperties, GiveTransparencyAsPercentCutTowardsZero)
{
    EXPECT_THAT(transparencyOf(0x020000FF), ElementsAre("441 0"));
    EXPECT_THAT(transparencyOf(0x02000000), ElementsAre("441 100"));
    EXPECT_THAT(transparencyOf(0x02000080), ElementsAre("441 49")); // 49.8
    EXPECT_THAT(transparencyOf(0x02000001), ElementsAre("441 99")); // 99.6
    EXPECT_THAT(transparencyOf(0x020000FE), ElementsAre("441 0"));  // 0.4
}

TEST_F(GeneralProperties, GiveTransparencyOfLayersAndBlocksAsWords)
{
    EXPECT_THAT(transparencyOf(0), ElementsAre("441 ByLayer"));
    EXPECT_THAT(transparencyOf(0x01000000), ElementsAre("441 ByBlock"));
}

TEST_F(GeneralProperties, GiveNoValueForATransparencyThatIsCodedWrongly)
{
    EXPECT_THAT(transparencyOf(0x05000000), ElementsAre("441 "));
}

TEST_F(GeneralProperties, GiveAnEmptyTextWithoutAHyperlink)
{
    change(circle, [](CircleMembers& members) { members.extendedData.reset(); });
    EXPECT_THAT(chain(kHyperlink), ElementsAre("5005 "));
    EXPECT_THAT(chain(kHyperlink, true, true), ElementsAre("5005 ", "280 2"));
}

/// Puts something else, or nothing, in the place of what answers for hyperlinks.
class OtherHyperlinks
{
  public:
    explicit OtherHyperlinks(KdRxObject* extension)
        : m_previous(KdDbEntity::desc()->delX(KdDbEntityHyperlinkPE::desc()))
    {
        if (extension)
            KdDbEntity::desc()->addX(KdDbEntityHyperlinkPE::desc(), extension);
    }
    ~OtherHyperlinks() { KdDbEntity::desc()->addX(KdDbEntityHyperlinkPE::desc(), m_previous); }

  private:
    KdRxObject* m_previous;
};

TEST_F(GeneralProperties, DoNotAnswerForHyperlinksWhereNothingKnowsThem)
{
    const OtherHyperlinks none(nullptr);
    const Answer given = answer(kHyperlink, false, true);
    EXPECT_EQ(given.status, 0);
    EXPECT_THAT(given.chain, ElementsAre("5000 nothing"));
}

TEST_F(GeneralProperties, DoNotAnswerForHyperlinksWhereAStrangerStandsForThem)
{
    class Stranger : public KdRxObject
    {
    } stranger;
    const OtherHyperlinks other(&stranger);
    const Answer given = answer(kHyperlink);
    EXPECT_EQ(given.status, 0);
    EXPECT_THAT(given.chain, ElementsAre("5000 nothing"));
}

TEST_F(GeneralProperties, GiveTheFirstOfSeveralHyperlinks)
{
    class TwoLinks : public KdDbEntityHyperlinkPE
    {
      public:
        KdErrorStatus hasHyperlink(const KdDbObject*, bool& has, bool ignoreBlock) override
        {
            has = true;
            ignored = ignoreBlock;
            return eOk;
        }
        KdErrorStatus getHyperlinkCollection(const KdDbObject*, KdDbHyperlinkCollection*& links,
                                             bool ownOnly, bool ignoreBlock) override
        {
            links = new KdDbHyperlinkCollection;
            links->addTail({L"first", {}, {}});
            links->addTail({L"second", {}, {}});
            ignored = ignored && ownOnly && ignoreBlock;
            return eOk;
        }
        bool ignored = false;
    } twoLinks;
    const OtherHyperlinks other(&twoLinks);
    EXPECT_THAT(chain(kHyperlink), ElementsAre("5005 first"));
    EXPECT_TRUE(twoLinks.ignored) << "the links of blocks do not count";
}

TEST_F(GeneralProperties, GiveAnEmptyTextForAnEmptyListOfHyperlinks)
{
    class NoLinks : public KdDbEntityHyperlinkPE
    {
      public:
        KdErrorStatus hasHyperlink(const KdDbObject*, bool& has, bool) override
        {
            has = true;
            return eOk;
        }
        KdErrorStatus getHyperlinkCollection(const KdDbObject*, KdDbHyperlinkCollection*& links,
                                             bool, bool) override
        {
            links = new KdDbHyperlinkCollection;
            return eOk;
        }
    } noLinks;
    const OtherHyperlinks other(&noLinks);
    EXPECT_THAT(chain(kHyperlink), ElementsAre("5005 "));
}

} // namespace
