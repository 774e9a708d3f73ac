#include <plugin/res_buf.h>

#include <limits>
#include <map>
#include <memory>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <runtime/heap.h>
#include <values/type_factory.h>

namespace {

struct ChainDeleter
{
    void operator()(ResBuf* chain) const { ResBuf::relRb(chain); }
};
using Chain = std::unique_ptr<ResBuf, ChainDeleter>;

Chain newRecord(int restype)
{
    return Chain(ResBuf::newRb(restype));
}

KdCmColor red()
{
    KdCmColor color;
    color.setRGB(255, 0, 0);
    return color;
}

/// Which getters answer for a kind, one letter each: (s)tring (b)ool (8)int8 (1)6-bit (3)2-bit
/// (d)ouble (p)oint2d (P)oint3d (c)olour.
struct Kind
{
    const char* name;
    int code;
    ResBuf::ValueType enumerator;
    const char* getters;
    const char* setters;
    const type_factory* factory;
};

// clang-format off
const Kind kKinds[] = {
    {"none",             5000, ResBuf::kNone,             "",     "",  &kValueFactories.plain},
    {"real",             5001, ResBuf::kReal,             "d",    "d", &kValueFactories.plain},
    {"point2d",          5002, ResBuf::kPoint2d,          "p",    "p", &kValueFactories.point},
    {"int16",            5003, ResBuf::kInt16,            "b13",  "1", &kValueFactories.plain},
    {"angle",            5004, ResBuf::kAngle,            "d",    "d", &kValueFactories.plain},
    {"string",           5005, ResBuf::kString,           "s",    "s", &kValueFactories.text},
    {"point3d",          5009, ResBuf::kPoint3d,          "P",    "P", &kValueFactories.point},
    {"int32",            5010, ResBuf::kInt32,            "3",    "3", &kValueFactories.plain},
    {"color",            5011, ResBuf::kColor,            "c",    "c", &kValueFactories.plain},
    {"linetypeName",     6,    ResBuf::kLinetypeName,     "s",    "s", &kValueFactories.text},
    {"layerName",        8,    ResBuf::kLayerName,        "s",    "s", &kValueFactories.text},
    {"linetypeScale",    48,   ResBuf::kLinetypeScale,    "d",    "d", &kValueFactories.plain},
    {"int8",             280,  ResBuf::kInt8,             "83",   "8", &kValueFactories.plain},
    {"bool",             290,  ResBuf::kBool,             "b",    "b", &kValueFactories.plain},
    {"lineweightName",   370,  ResBuf::kLineweightName,   "s",    "s", &kValueFactories.text},
    {"plotStyleChoice",  380,  ResBuf::kPlotStyleChoice,  "",     "",  &kValueFactories.plain},
    {"plotStyleName",    440,  ResBuf::kPlotStyleName,    "s",    "s", &kValueFactories.text},
    {"transparencyText", 441,  ResBuf::kTransparencyText, "s",    "s", &kValueFactories.text},
    {"outsideTheTable",  61,   ResBuf::ValueType(61),     "",     "",  &kValueFactories.plain},
};
// clang-format on

class ResBufOfKind : public testing::TestWithParam<Kind>
{
  protected:
    Chain m_record = newRecord(GetParam().code);

    bool serves(const char* letters, char letter) const
    {
        return std::string(letters).find(letter) != std::string::npos;
    }

    void setEverything()
    {
        m_record->setString(L"text");
        m_record->setBool(true);
        m_record->setInt8(7);
        m_record->setInt16(7);
        m_record->setInt32(7);
        m_record->setDouble(7.5);
        m_record->setPoint2d({1.0, 2.0});
        m_record->setPoint3d({1.0, 2.0, 3.0});
        m_record->setColor(red());
    }

    /// What the getters give, apart from the neutral values.
    std::string speakingGetters() const
    {
        std::string letters;
        if (!m_record->getString().isEmpty())
            letters += 's';
        if (m_record->getBool())
            letters += 'b';
        if (m_record->getInt8() != 0)
            letters += '8';
        if (m_record->getInt16() != 0)
            letters += '1';
        if (m_record->getInt32() != 0)
            letters += '3';
        if (m_record->getDouble() != 0.0)
            letters += 'd';
        if (!(m_record->getPoint2d() == KdGePoint2d::kOrigin))
            letters += 'p';
        if (!(m_record->getPoint3d() == KdGePoint3d::kOrigin))
            letters += 'P';
        if (!(m_record->getColor() == KdCmColor()))
            letters += 'c';
        return letters;
    }
};

INSTANTIATE_TEST_SUITE_P(AllKinds, ResBufOfKind, testing::ValuesIn(kKinds),
                         [](const auto& row) { return row.param.name; });

TEST_P(ResBufOfKind, HasTheCodeOfItsEnumerator)
{
    EXPECT_EQ(GetParam().enumerator, GetParam().code);
    EXPECT_EQ(m_record->restype(), GetParam().code);
}

TEST_P(ResBufOfKind, BeginsWithNeutralValues)
{
    EXPECT_EQ(speakingGetters(), "");
}

TEST_P(ResBufOfKind, IsKeptByTheFactoryOfItsCode)
{
    EXPECT_EQ(&typeFactoryFor(GetParam().code), GetParam().factory);
}

TEST_P(ResBufOfKind, AnswersOnlyTheGettersOfItsKindAfterAllSetters)
{
    setEverything();
    EXPECT_EQ(speakingGetters(), GetParam().getters);
}

TEST_P(ResBufOfKind, IsWrittenByTheSettersOfItsKindAlone)
{
    const std::map<char, void (*)(ResBuf&)> setters = {
        {'s', [](ResBuf& record) { record.setString(L"text"); }},
        {'b', [](ResBuf& record) { record.setBool(true); }},
        {'8', [](ResBuf& record) { record.setInt8(7); }},
        {'1', [](ResBuf& record) { record.setInt16(7); }},
        {'3', [](ResBuf& record) { record.setInt32(7); }},
        {'d', [](ResBuf& record) { record.setDouble(7.5); }},
        {'p',
         [](ResBuf& record) {
             record.setPoint2d({1.0, 2.0});
         }},
        {'P',
         [](ResBuf& record) {
             record.setPoint3d({1.0, 2.0, 3.0});
         }},
        {'c', [](ResBuf& record) { record.setColor(red()); }},
    };
    for (const auto& [letter, set] : setters) {
        m_record = newRecord(GetParam().code);
        set(*m_record);
        const bool writes = serves(GetParam().setters, letter);
        EXPECT_EQ(speakingGetters(), writes ? GetParam().getters : "") << "setter " << letter;
    }
}

TEST_P(ResBufOfKind, LeavesNothingBehind)
{
    m_record.reset();
    const long long records = ResBuf::recordsInUse();
    const long long blocks = kdHeapBlocksInUse();
    m_record = newRecord(GetParam().code);
    setEverything();
    m_record.reset();
    EXPECT_EQ(ResBuf::recordsInUse(), records);
    EXPECT_EQ(kdHeapBlocksInUse(), blocks);
}

TEST(ResBuf, BeginsAsNothingWithoutAFollower)
{
    const ResBuf record;
    EXPECT_EQ(record.restype(), 5000);
    EXPECT_EQ(record.next(), nullptr);
}

TEST(ResBuf, TakesATextAtOnce)
{
    const Chain record(ResBuf::newRb(ResBuf::kLayerName, L"PIPES"));
    EXPECT_EQ(record->getString(), L"PIPES");
    EXPECT_EQ(record->next(), nullptr);
}

TEST(ResBuf, TakesANullTextAsAnEmptyOne)
{
    const Chain record(ResBuf::newRb(ResBuf::kString, nullptr));
    EXPECT_TRUE(record->getString().isEmpty());
}

TEST(ResBuf, DropsATextThatItsKindCannotHold)
{
    const Chain record(ResBuf::newRb(ResBuf::kReal, L"12"));
    EXPECT_EQ(record->getDouble(), 0.0);
    EXPECT_TRUE(record->getString().isEmpty());
}

TEST(ResBuf, FreesAWholeChainAndClearsItsHead)
{
    const long long before = ResBuf::recordsInUse();
    ResBuf* chain = ResBuf::newRb(ResBuf::kString, L"1");
    chain->setNext(ResBuf::newRb(ResBuf::kColor))->setNext(ResBuf::newRb(ResBuf::kPoint3d));
#ifndef NDEBUG
    EXPECT_EQ(ResBuf::recordsInUse(), before + 3);
#endif
    ResBuf::relRb(chain);
    EXPECT_EQ(chain, nullptr);
    EXPECT_EQ(ResBuf::recordsInUse(), before);
}

TEST(ResBuf, LeavesANullHeadNull)
{
    ResBuf* chain = nullptr;
    ResBuf::relRb(chain);
    EXPECT_EQ(chain, nullptr);
}

TEST(ResBuf, LeavesItsFollowersAloneWhenItDies)
{
    const Chain follower = newRecord(ResBuf::kInt16);
    follower->setInt16(4);
    ResBuf* record = ResBuf::newRb(ResBuf::kReal);
    record->setNext(follower.get());
    delete record;
    EXPECT_EQ(follower->getInt16(), 4);
}

TEST(ResBuf, OverwritesTheLinkAndGivesBackTheNewFollower)
{
    const Chain first = newRecord(ResBuf::kReal);
    const Chain old = newRecord(ResBuf::kReal);
    first->setNext(old.get());
    ResBuf* const fresh = ResBuf::newRb(ResBuf::kReal);
    EXPECT_EQ(first->setNext(fresh), fresh);
    EXPECT_EQ(first->next(), fresh);
    EXPECT_EQ(first->setNext(nullptr), nullptr);
    EXPECT_EQ(old->restype(), ResBuf::kReal);
    delete fresh;
}

TEST(ResBuf, FindsTheLastRecordOfAChain)
{
    const Chain head = newRecord(ResBuf::kReal);
    EXPECT_EQ(head->last(), head.get());
    ResBuf* const tail =
        head->setNext(ResBuf::newRb(ResBuf::kReal))->setNext(ResBuf::newRb(ResBuf::kReal));
    EXPECT_EQ(head->last(), tail);
    EXPECT_EQ(head->next()->last(), tail);
}

TEST(ResBuf, HasNoLastRecordInANullChain)
{
    EXPECT_EQ(ResBuf::last(nullptr), nullptr);
}

TEST(ResBuf, SplicesAChainBehindItself)
{
    const Chain head = newRecord(ResBuf::kReal);
    ResBuf* const follower = head->setNext(ResBuf::newRb(ResBuf::kReal));
    ResBuf* const inserted = ResBuf::newRb(ResBuf::kInt16);
    ResBuf* const insertedTail = inserted->setNext(ResBuf::newRb(ResBuf::kInt16));
    head->insert(inserted);
    EXPECT_EQ(head->next(), inserted);
    EXPECT_EQ(insertedTail->next(), follower);
    EXPECT_EQ(follower->next(), nullptr);
}

TEST(ResBuf, StaysWholeWhenANullChainIsInserted)
{
    const Chain head = newRecord(ResBuf::kReal);
    ResBuf* const follower = head->setNext(ResBuf::newRb(ResBuf::kReal));
    head->insert(nullptr);
    EXPECT_EQ(head->next(), follower);
}

TEST(ResBuf, HoldsAnEmptyTextAsSoonAsItIsAText)
{
    ResBuf record;
    record.setRestype(ResBuf::kString);
    EXPECT_EQ(record.getString(), L"");
    record.setString(L"now");
    EXPECT_EQ(record.getString(), L"now");
}

TEST(ResBuf, KeepsThePointBetweenTwoAndThreeDimensions)
{
    ResBuf record;
    record.setRestype(ResBuf::kPoint3d);
    EXPECT_EQ(record.getPoint3d(), KdGePoint3d({0.0, 0.0, 0.0}));
    record.setPoint3d({1.0, 2.0, 3.0});
    record.setRestype(ResBuf::kPoint2d);
    EXPECT_EQ(record.getPoint2d(), KdGePoint2d({1.0, 2.0}));
    EXPECT_EQ(&record.getPoint3d(), &KdGePoint3d::kOrigin);
}

TEST(ResBuf, LeavesZAsItIsWhenASecondDimensionIsWritten)
{
    ResBuf record;
    record.setRestype(ResBuf::kPoint3d);
    record.setPoint3d({1.0, 2.0, 3.0});
    record.setRestype(ResBuf::kPoint2d);
    record.setPoint2d({8.0, 9.0});
    record.setRestype(ResBuf::kPoint3d);
    EXPECT_EQ(record.getPoint3d(), KdGePoint3d({8.0, 9.0, 3.0}));
}

TEST(ResBuf, KeepsTheTextBetweenKindsOfText)
{
    ResBuf record;
    record.setRestype(ResBuf::kString);
    record.setString(L"PIPES");
    record.setRestype(ResBuf::kLayerName);
    EXPECT_EQ(record.getString(), L"PIPES");
}

TEST(ResBuf, MakesADefaultColorOnlyWhenItBecomesAColor)
{
    ResBuf record;
    record.setRestype(ResBuf::kString);
    record.setString(L"red");
    record.setRestype(ResBuf::kColor);
    EXPECT_EQ(record.getColor(), KdCmColor());
    record.setColor(red());
    record.setRestype(ResBuf::kColor);
    EXPECT_EQ(record.getColor(), red());
    record.setRestype(ResBuf::kReal);
    EXPECT_EQ(record.getDouble(), 0.0);
}

TEST(ResBuf, FreesWhatItHeldWhenTheStorageChanges)
{
    const long long blocks = kdHeapBlocksInUse();
    ResBuf record;
    record.setRestype(ResBuf::kString);
    record.setString(L"text");
    record.setRestype(ResBuf::kInt32);
    EXPECT_EQ(kdHeapBlocksInUse(), blocks);
}

TEST(ResBuf, ReinterpretsItsBytesBetweenPlainKinds)
{
    ResBuf record;
    record.setRestype(ResBuf::kReal);
    record.setDouble(2.5); // 0x4004000000000000
    record.setRestype(ResBuf::kInt16);
    EXPECT_EQ(record.getInt16(), 0);
    record.setInt16(0x1234);
    record.setRestype(ResBuf::kReal);
    EXPECT_EQ(record.getDouble(), 2.5 + 0x1234 * 0x1p-51); // one unit of 2.5 is 2^-51
}

TEST(ResBuf, ReadsAnyByteButZeroAsTrue)
{
    ResBuf record;
    record.setRestype(ResBuf::kInt16);
    record.setInt16(0x0102);
    record.setRestype(ResBuf::kBool);
    EXPECT_TRUE(record.getBool());
    record.setRestype(ResBuf::kInt16);
    record.setInt16(0x0100);
    record.setRestype(ResBuf::kBool);
    EXPECT_FALSE(record.getBool());
}

TEST(ResBuf, AgreesOnSmallIntegersInEveryWidth)
{
    ResBuf record;
    record.setRestype(ResBuf::kInt8);
    for (int value = -128; value <= 127; ++value) {
        record.setInt8(static_cast<signed char>(value));
        EXPECT_EQ(record.getInt8(), value);
        EXPECT_EQ(record.getInt32(), value);
        EXPECT_EQ(record.getInt16(), 0);
    }
}

TEST(ResBuf, ReadsAShortWithItsSignAsALongerInteger)
{
    ResBuf record;
    record.setRestype(ResBuf::kInt16);
    record.setInt16(-300);
    EXPECT_EQ(record.getInt32(), -300);
    EXPECT_EQ(record.getInt8(), 0);
}

TEST(ResBuf, HoldsTheLimitsOfItsIntegers)
{
    ResBuf record;
    record.setRestype(ResBuf::kInt32);
    for (const int value : {std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        record.setInt32(value);
        EXPECT_EQ(record.getInt32(), value);
    }
    record.setRestype(ResBuf::kInt16);
    for (const short value :
         {std::numeric_limits<short>::min(), std::numeric_limits<short>::max()}) {
        record.setInt16(value);
        EXPECT_EQ(record.getInt16(), value);
    }
}

TEST(ResBuf, AnswersForAShortAsABoolButIsNotWrittenAsOne)
{
    ResBuf record;
    record.setRestype(ResBuf::kInt16);
    record.setBool(true);
    EXPECT_FALSE(record.getBool());
    record.setInt16(7);
    EXPECT_TRUE(record.getBool());
    record.setBool(false);
    EXPECT_EQ(record.getInt16(), 7);
}

TEST(ResBuf, GivesPointsAndColorsByReferenceToWhatItHolds)
{
    ResBuf record;
    record.setRestype(ResBuf::kPoint3d);
    const KdGePoint3d& point = record.getPoint3d();
    record.setPoint3d({1.0, 2.0, 3.0});
    EXPECT_EQ(point, KdGePoint3d({1.0, 2.0, 3.0}));
    record.setRestype(ResBuf::kColor);
    const KdCmColor& color = record.getColor();
    record.setColor(red());
    EXPECT_EQ(color, red());
}

TEST(ResBuf, SharesOneDefaultColorBetweenRecordsWithoutColor)
{
    const ResBuf one;
    const ResBuf other;
    EXPECT_EQ(&one.getColor(), &other.getColor());
}

TEST(ResBuf, GivesTextsThatOutliveIt)
{
    KdString text;
    {
        const Chain record(ResBuf::newRb(ResBuf::kString, L"kept"));
        text = record->getString();
    }
    EXPECT_EQ(text, L"kept");
}

TEST(ResBuf, SharesTheCharactersOfItsTextWithEveryCopy)
{
    const Chain record(ResBuf::newRb(ResBuf::kString, L"shared"));
    EXPECT_EQ(record->getString().kwszPtr(), record->getString().kwszPtr());
}

TEST(TypeFactory, LeavesObjectsOfOthersAlone)
{
    const factory_for<KdRxObject*> factory;
    ResBuf::Data data{{1, 2, 3, 4, 5, 6, 7, 8}};
    factory.construct(&data);
    factory.destroy(&data);
    EXPECT_THAT(data.bytes, testing::ElementsAre(1, 2, 3, 4, 5, 6, 7, 8));
}

TEST(TypeFactory, ClearsAllBytesOfPlainValues)
{
    ResBuf::Data data{{1, 2, 3, 4, 5, 6, 7, 8}};
    kValueFactories.plain.construct(&data);
    EXPECT_THAT(data.bytes, testing::Each(0));
}

TEST(TypeFactory, FreesNullAsNothing)
{
    ResBuf::Data data{};
    kValueFactories.text.destroy(&data);
    kValueFactories.color.destroy(&data);
    kValueFactories.point.destroy(&data);
    EXPECT_EQ(data.text, nullptr);
}

/// Each test begins and ends without a registered class.
class ResBufClass : public testing::Test
{
  protected:
    void SetUp() override { forget(); }
    void TearDown() override { forget(); }

    static void forget()
    {
        deleteKdRxClass(kdrxFindKdRxClass(L"ResBuf"));
        ResBuf::gpDesc = nullptr;
    }
};

TEST_F(ResBufClass, IsNullWhileNobodyRegisteredIt)
{
    EXPECT_EQ(ResBuf::desc(), nullptr);
    EXPECT_EQ(ResBuf().isA(), nullptr);
}

TEST_F(ResBufClass, IsFoundOnceSomebodyElseRegisteredIt)
{
    EXPECT_EQ(ResBuf::desc(), nullptr);
    KdRxClass* const registered =
        newKdRxClass(L"ResBuf", KdRxObject::desc()->name(), 0, nullptr, nullptr, nullptr);
    EXPECT_EQ(ResBuf::desc(), registered);
    EXPECT_EQ(ResBuf().isA(), registered);
    EXPECT_EQ(ResBuf::gpDesc, registered);
}

TEST_F(ResBufClass, IsRegisteredBelowTheRootAndMakesEmptyRecords)
{
    ResBuf::rxInit();
    KdRxClass* const registered = kdrxFindKdRxClass(L"ResBuf");
    ASSERT_NE(registered, nullptr);
    EXPECT_EQ(ResBuf::desc(), registered);
    EXPECT_EQ(registered->myParent(), KdRxObject::desc());
    EXPECT_EQ(registered->proxyFlags(), 33);
    const std::unique_ptr<KdRxObject> made(registered->create());
    const auto* const record = dynamic_cast<ResBuf*>(made.get());
    ASSERT_NE(record, nullptr);
    EXPECT_EQ(record->restype(), ResBuf::kNone);
}

TEST_F(ResBufClass, StaysTheSameWhenItIsRegisteredTwice)
{
    ResBuf::rxInit();
    KdRxClass* const first = ResBuf::desc();
    ResBuf::rxInit();
    EXPECT_EQ(ResBuf::desc(), first);
}

TEST_F(ResBufClass, IsRegisteredAgainAfterItWasDeleted)
{
    ResBuf::rxInit();
    deleteKdRxClass(ResBuf::desc());
    ResBuf::rxInit();
    EXPECT_EQ(kdrxFindKdRxClass(L"ResBuf"), ResBuf::gpDesc);
    EXPECT_NE(ResBuf::gpDesc, nullptr);
}

TEST_F(ResBufClass, EndsTheProcessWhenAnotherClassHasItsName)
{
    newKdRxClass(L"ResBuf", KdRxObject::desc()->name(), 0, nullptr, nullptr, nullptr);
    ResBuf::gpDesc = KdRxObject::desc();
    EXPECT_DEATH(ResBuf::rxInit(), "Class mismatch");
}

TEST_F(ResBufClass, LetsChainsBeWalkedWhetherRegisteredOrNot)
{
    const Chain head = newRecord(ResBuf::kReal);
    ResBuf* const tail = head->setNext(ResBuf::newRb(ResBuf::kReal));
    EXPECT_EQ(head->last(), tail);
    ResBuf::rxInit();
    EXPECT_EQ(head->last(), tail);
}

TEST(ResBufClearing, LeavesTheNeutralValueOfTheSameKind)
{
    for (const int kind : {5001, 5002, 5003, 5004, 5005, 5009, 5010, 5011, 8, 290, 441}) {
        ResBuf record;
        record.setRestype(kind);
        record.setDouble(2.5);
        record.setInt16(7);
        record.setInt32(7);
        record.setBool(true);
        record.setString(L"text");
        record.setPoint2d({1, 2});
        record.setPoint3d({1, 2, 3});
        KdCmColor red;
        ASSERT_EQ(red.setColorIndex(1), eOk);
        record.setColor(red);
        record.clearValue();
        EXPECT_EQ(record.restype(), kind);
        EXPECT_EQ(record.getDouble(), 0.0);
        EXPECT_EQ(record.getInt16(), 0);
        EXPECT_EQ(record.getInt32(), 0);
        EXPECT_FALSE(record.getBool());
        EXPECT_TRUE(record.text().isEmpty());
        EXPECT_EQ(record.getPoint2d().x, 0.0);
        EXPECT_EQ(record.getPoint3d().z, 0.0);
        EXPECT_EQ(record.getColor().color(), KdCmColor().color());
    }
}

} // namespace
