#include "support.h"

#include <sstream>

#include <editor/system_variables.h>

namespace provider_test {

namespace {

class EnglishTexts : public testing::Environment
{
  public:
    void SetUp() override { setResourceLanguage("en"); }
};

[[maybe_unused]] const auto* const kTexts = testing::AddGlobalTestEnvironment(new EnglishTexts);

void writeValue(std::ostream& out, const ResBuf& record)
{
    switch (record.restype()) {
    case ResBuf::kNone:
        out << "nothing";
        break;
    case ResBuf::kReal:
    case ResBuf::kAngle:
    case ResBuf::kLinetypeScale:
        out << record.getDouble();
        break;
    case ResBuf::kInt8:
    case ResBuf::kInt16:
    case ResBuf::kInt32:
        out << record.getInt32();
        break;
    case ResBuf::kBool:
        out << (record.getBool() ? "true" : "false");
        break;
    case ResBuf::kPoint2d:
        out << record.getPoint2d().x << ',' << record.getPoint2d().y;
        break;
    case ResBuf::kPoint3d:
        out << record.getPoint3d().x << ',' << record.getPoint3d().y << ','
            << record.getPoint3d().z;
        break;
    case ResBuf::kColor:
        out << "color " << record.getColor().colorIndex();
        break;
    default:
        out << ascii(record.getString().view());
    }
}

} // namespace

std::string ascii(std::wstring_view text)
{
    return {text.begin(), text.end()};
}

std::string inWords(const ResBuf& record)
{
    std::ostringstream out;
    out << record.restype() << ' ';
    writeValue(out, record);
    return out.str();
}

std::vector<std::string> inWords(const ResBuf* chain)
{
    std::vector<std::string> words;
    for (; chain; chain = chain->next())
        words.push_back(inWords(*chain));
    return words;
}

Answer ask(KdDbEntityPE& provider, const KdDbEntity* entity, const wchar_t* key, bool asDisplayText,
           bool withChoices)
{
    ValueChain value;
    const int status =
        provider.PropertyValueGet(entity, key, value.head(), asDisplayText, withChoices);
    return {status, inWords(value.head())};
}

Listing list(KdDbEntityPE& provider, const KdDbEntity* entity)
{
    KdArray<KdString> names;
    KdArray<bool> flags;
    Listing listing{provider.PropertyCount(entity, names, flags), {}, {}};
    for (int i = 0; i < names.length(); ++i)
        listing.keys.emplace_back(names[i].view());
    for (int i = 0; i < flags.length(); ++i)
        listing.flags.push_back(flags[i]);
    return listing;
}

ProviderTest::ProviderTest()
{
    EXPECT_TRUE(SetCurrentResourceName(L"KwQselectUtilRes.dll"));
    kddbHostApplicationServices()->setWorkingDatabase(&drawing);
    KdDbEntityPE::rxInit();
    KdDbEntity_Extension::rxInit();
}

ProviderTest::~ProviderTest()
{
    deleteKdRxClass(KdDbEntity_Extension::desc());
    deleteKdRxClass(KdDbEntityPE::desc());
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    RestorePreviousResource();
}

void ProviderTest::TearDown()
{
    EXPECT_EQ(drawing.openCount(), 0) << "objects were left open";
    EXPECT_EQ(ResBuf::recordsInUse(), m_recordsBefore) << "value records were left";
    EXPECT_TRUE(messages.shown.empty()) << "a message came up that the test does not expect";
}

void ProviderTest::setHeader(const wchar_t* variable, int value)
{
    const int index = KdDbHeaderVariables::indexOf(variable);
    ASSERT_GE(index, 0);
    ASSERT_TRUE(drawing.header().setValue(index, std::int32_t{value}));
}

void ProviderTest::setVariable(const wchar_t* variable, short value)
{
    resbuf record{};
    record.restype = RTSHORT;
    record.resval.rint = value;
    ASSERT_EQ(kdedSetVar(variable, &record), RTNORM);
}

void ProviderTest::append(KdDbEntity* entity)
{
    KdDbBlockTableRecord* model = nullptr;
    ASSERT_EQ(kddbOpenObject(model, drawing.modelSpaceId(), KdDb::kForWrite), eOk);
    EXPECT_EQ(model->appendEntity(entity), eOk);
    model->close();
}

} // namespace provider_test
