#include "working_drawing.h"

#include <gmock/gmock.h>

#include <runtime/heap.h>

#include <algorithm>
#include <cmath>
#include <cwctype>
#include <limits>
#include <string>

using namespace editor_test;
using testing::Contains;
using testing::Field;
using testing::StrEq;

namespace {

class SystemVariables : public WorkingDrawing
{
  protected:
    static resbuf get(const wchar_t* name)
    {
        resbuf record{};
        EXPECT_EQ(kdedGetVar(name, &record), RTNORM);
        return record;
    }

    static resbuf real(double value)
    {
        resbuf record{};
        record.restype = RTREAL;
        record.resval.rreal = value;
        return record;
    }

    static int setText(const wchar_t* name, const wchar_t* value)
    {
        std::wstring text = value ? value : L"";
        resbuf record{};
        record.restype = RTSTR;
        record.resval.rstring = value ? text.data() : nullptr;
        return kdedSetVar(name, &record);
    }

    static std::wstring getText(const wchar_t* name)
    {
        const resbuf record = get(name);
        EXPECT_EQ(record.restype, RTSTR);
        std::wstring text = record.resval.rstring;
        kdutDelString(record.resval.rstring);
        return text;
    }

    void inHeader(const wchar_t* name, KdDbHeaderValue value)
    {
        EXPECT_TRUE(
            drawing.header().setValue(KdDbHeaderVariables::indexOf(name), std::move(value)));
    }
};

struct InitialRow
{
    const wchar_t* name;
    short value;
};

TEST_F(SystemVariables, BeginWithTheirInitialValues)
{
    constexpr InitialRow kRows[] = {
        {L"TILEMODE", 1}, {L"CVPORT", 2},       {L"GRIPS", 2},      {L"COLORTHEME", 0},
        {L"LUPREC", 4},   {L"LUNITS", 2},       {L"DIMZIN", 0},     {L"UNITMODE", 0},
        {L"LWUNITS", 1},  {L"ANGDIR", 0},       {L"AUNITS", 0},     {L"AUPREC", 0},
        {L"INSUNITS", 0}, {L"USEDEGREESYM", 1}, {L"PSTYLEMODE", 1}, {L"QSELECTLISTVALUES", 0},
    };
    for (const InitialRow& row : kRows)
        EXPECT_EQ(getShort(row.name), row.value) << row.name;
}

TEST_F(SystemVariables, AreReadFromTheHeaderEachTime)
{
    inHeader(L"LUPREC", 6);
    EXPECT_EQ(getShort(L"LUPREC"), 6);
    inHeader(L"LUPREC", 2);
    EXPECT_EQ(getShort(L"LUPREC"), 2);
}

TEST_F(SystemVariables, GiveRealsAsTheyAre)
{
    inHeader(L"ANGBASE", 1.5);
    const resbuf record = get(L"ANGBASE");
    EXPECT_EQ(record.restype, RTREAL);
    EXPECT_EQ(record.resval.rreal, 1.5);
}

TEST_F(SystemVariables, GivePointsInThreeDimensions)
{
    inHeader(L"UCSORG", KdGePoint3d{1.0, 2.0, 3.0});
    const resbuf record = get(L"UCSORG");
    EXPECT_EQ(record.restype, RT3DPOINT);
    EXPECT_THAT(record.resval.rpoint, testing::ElementsAre(1.0, 2.0, 3.0));
}

TEST_F(SystemVariables, GiveATextThatTheCallerFrees)
{
    const long long before = kdHeapBlocksInUse();
    EXPECT_EQ(getText(L"CLAYER"), L"0");
    EXPECT_EQ(kdHeapBlocksInUse(), before);
}

TEST_F(SystemVariables, AllocateNothingForNumbers)
{
    const long long before = kdHeapBlocksInUse();
    get(L"LUPREC");
    get(L"UCSXDIR");
    EXPECT_EQ(kdHeapBlocksInUse(), before);
}

TEST_F(SystemVariables, AreNamedWithoutCase)
{
    EXPECT_EQ(getShort(L"luprec"), 4);
    EXPECT_EQ(getShort(L"TileMode"), 1);
    EXPECT_EQ(getShort(L"lwUnits"), 1);
}

TEST_F(SystemVariables, KeepAWildValueWithinAShort)
{
    inHeader(L"DIMALTU", 1000000);
    EXPECT_EQ(getShort(L"DIMALTU"), 32767);
}

TEST_F(SystemVariables, AreRefusedWithAnUnknownName)
{
    resbuf record = real(7.0);
    for (const wchar_t* name : {L"", L"LUPRE", L"LUPRECS", L"LUPR\u00c9C", L"$LUPREC",
                                L"A NAME THAT IS LONGER THAN ANY VARIABLE HAS EVER HAD"}) {
        EXPECT_EQ(kdedGetVar(name, &record), RTERROR) << name;
        EXPECT_EQ(kdedSetVar(name, &record), RTERROR) << name;
    }
    EXPECT_EQ(record.restype, RTREAL);
    EXPECT_EQ(record.resval.rreal, 7.0);
}

TEST_F(SystemVariables, AreRefusedWithNull)
{
    resbuf record{};
    EXPECT_EQ(kdedGetVar(nullptr, &record), RTERROR);
    EXPECT_EQ(kdedGetVar(L"LUPREC", nullptr), RTERROR);
    EXPECT_EQ(kdedSetVar(nullptr, &record), RTERROR);
    EXPECT_EQ(kdedSetVar(L"LUPREC", nullptr), RTERROR);
}

TEST_F(SystemVariables, OfTheDrawingNeedAWorkingDrawing)
{
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    resbuf record{};
    EXPECT_EQ(kdedGetVar(L"LUPREC", &record), RTERROR);
    EXPECT_EQ(setShort(L"LUPREC", 2), RTERROR);
    EXPECT_EQ(kdedGetVar(L"CVPORT", &record), RTERROR);
    EXPECT_EQ(setShort(L"CVPORT", 2), RTERROR);
}

TEST_F(SystemVariables, OfTheSessionNeedNoDrawing)
{
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    EXPECT_EQ(setShort(L"QSELECTLISTVALUES", 1), RTNORM);
    EXPECT_EQ(getShort(L"QSELECTLISTVALUES"), 1);
    EXPECT_EQ(setShort(L"QSELECTLISTVALUES", 0), RTNORM);
}

TEST_F(SystemVariables, OfTheSessionHoldForEveryDrawing)
{
    KdDbDatabase other;
    EXPECT_EQ(setShort(L"lwunits", 0), RTNORM);
    kddbHostApplicationServices()->setWorkingDatabase(&other);
    EXPECT_EQ(getShort(L"LWUNITS"), 0);
    EXPECT_EQ(setShort(L"LWUNITS", 1), RTNORM);
}

TEST_F(SystemVariables, OfTheDrawingAreSetInItsHeader)
{
    EXPECT_EQ(setShort(L"LUPREC", 8), RTNORM);
    EXPECT_EQ(drawing.header().integer(L"LUPREC"), 8);
    EXPECT_EQ(setText(L"DIMPOST", L"<> mm"), RTNORM);
    EXPECT_EQ(drawing.header().text(L"DIMPOST"), L"<> mm");
    const resbuf scale = real(0.5);
    EXPECT_EQ(kdedSetVar(L"LTSCALE", &scale), RTNORM);
    EXPECT_EQ(drawing.header().real(L"LTSCALE"), 0.5);
}

TEST_F(SystemVariables, TakePoints)
{
    resbuf record{};
    record.restype = RT3DPOINT;
    record.resval.rpoint[0] = 1.0;
    record.resval.rpoint[1] = 2.0;
    record.resval.rpoint[2] = 3.0;
    EXPECT_EQ(kdedSetVar(L"INSBASE", &record), RTNORM);
    EXPECT_EQ(drawing.header().point(L"INSBASE"), (KdGePoint3d{1.0, 2.0, 3.0}));
    record.resval.rpoint[1] = std::nan("");
    EXPECT_EQ(kdedSetVar(L"INSBASE", &record), RTREJ);
    EXPECT_EQ(drawing.header().point(L"INSBASE"), (KdGePoint3d{1.0, 2.0, 3.0}));
}

TEST_F(SystemVariables, RefuseAnotherType)
{
    const resbuf number = real(4.0);
    EXPECT_EQ(kdedSetVar(L"LUPREC", &number), RTERROR);
    EXPECT_EQ(kdedSetVar(L"LWUNITS", &number), RTERROR);
    EXPECT_EQ(kdedSetVar(L"CLAYER", &number), RTERROR);
    EXPECT_EQ(setShort(L"LTSCALE", 2), RTERROR);
    EXPECT_EQ(setText(L"INSBASE", L"1,2,3"), RTERROR);
}

TEST_F(SystemVariables, RefuseANullText)
{
    EXPECT_EQ(setText(L"DIMPOST", nullptr), RTERROR);
}

struct RangeRow
{
    const wchar_t* name;
    short lowest;
    short highest;
};

TEST_F(SystemVariables, RefuseNumbersOutOfRange)
{
    constexpr RangeRow kRows[] = {
        {L"LUNITS", 1, 5},   {L"LUPREC", 0, 8},     {L"AUNITS", 0, 4},    {L"AUPREC", 0, 8},
        {L"ANGDIR", 0, 1},   {L"UNITMODE", 0, 1},   {L"INSUNITS", 0, 24}, {L"DIMZIN", 0, 15},
        {L"GRIPS", 0, 2},    {L"COLORTHEME", 0, 1}, {L"CECOLOR", 0, 256}, {L"CELWEIGHT", -3, 211},
        {L"TILEMODE", 0, 1}, {L"LWUNITS", 0, 1},    {L"DIMLUNIT", 1, 6},  {L"USEDEGREESYM", 0, 1},
    };
    for (const RangeRow& row : kRows) {
        const short before = getShort(row.name);
        EXPECT_EQ(setShort(row.name, static_cast<short>(row.lowest - 1)), RTREJ) << row.name;
        EXPECT_EQ(setShort(row.name, static_cast<short>(row.highest + 1)), RTREJ) << row.name;
        EXPECT_EQ(getShort(row.name), before) << row.name;
        EXPECT_EQ(setShort(row.name, row.lowest), RTNORM) << row.name;
        EXPECT_EQ(setShort(row.name, row.highest), RTNORM) << row.name;
        EXPECT_EQ(setShort(row.name, before), RTNORM) << row.name;
    }
}

TEST_F(SystemVariables, RefuseRealsOutOfRangeOrNotFinite)
{
    for (const double value : {0.0, -1.0, std::nan(""), std::numeric_limits<double>::infinity()}) {
        const resbuf record = real(value);
        EXPECT_EQ(kdedSetVar(L"LTSCALE", &record), RTREJ) << value;
    }
    EXPECT_EQ(drawing.header().real(L"LTSCALE"), 1.0);
    const resbuf endless = real(std::numeric_limits<double>::infinity());
    EXPECT_EQ(kdedSetVar(L"DIMLFAC", &endless), RTREJ);
}

TEST_F(SystemVariables, RefuseToChangeWhatIsReadOnly)
{
    const short before = getShort(L"PSTYLEMODE");
    EXPECT_EQ(setShort(L"PSTYLEMODE", 0), RTREJ);
    EXPECT_EQ(getShort(L"PSTYLEMODE"), before);
    EXPECT_EQ(setText(L"DIMSTYLE", L"Standard"), RTREJ);
    resbuf origin = get(L"UCSORG");
    EXPECT_EQ(kdedSetVar(L"UCSORG", &origin), RTREJ);
}

TEST_F(SystemVariables, RefuseTheNameOfWhatTheDrawingLacks)
{
    EXPECT_EQ(setText(L"CLAYER", L"PIPES"), RTREJ);
    EXPECT_EQ(getText(L"CLAYER"), L"0");
    drawing.addRecord<KdDbLayerTable>(L"PIPES");
    EXPECT_EQ(setText(L"CLAYER", L"PIPES"), RTNORM);
    EXPECT_EQ(getText(L"CLAYER"), L"PIPES");
    EXPECT_EQ(setText(L"CELTYPE", L"DASHED"), RTREJ);
    EXPECT_EQ(setText(L"TEXTSTYLE", L"Notes"), RTREJ);
}

TEST_F(SystemVariables, NumberTheSheetAsViewportOne)
{
    setShort(L"TILEMODE", 0);
    EXPECT_EQ(getShort(L"CVPORT"), 1);
    setShort(L"TILEMODE", 1);
    EXPECT_EQ(getShort(L"CVPORT"), 2);
}

TEST_F(SystemVariables, KeepTheViewportWhileItsSpaceIsShown)
{
    setShort(L"TILEMODE", 0);
    EXPECT_EQ(setShort(L"CVPORT", 3), RTNORM);
    EXPECT_EQ(getShort(L"CVPORT"), 3);
    setShort(L"TILEMODE", 1);
    EXPECT_EQ(getShort(L"CVPORT"), 2);
}

TEST_F(SystemVariables, StartOnTheSheetWhateverViewportTheModelHad)
{
    EXPECT_EQ(setShort(L"CVPORT", 4), RTNORM);
    EXPECT_EQ(getShort(L"CVPORT"), 4);
    setShort(L"TILEMODE", 0);
    EXPECT_EQ(getShort(L"CVPORT"), 1);
}

TEST_F(SystemVariables, RefuseViewportsThatTheSpaceCanNotHave)
{
    EXPECT_EQ(setShort(L"CVPORT", 1), RTREJ);
    setShort(L"TILEMODE", 0);
    EXPECT_EQ(setShort(L"CVPORT", 0), RTREJ);
    EXPECT_EQ(setShort(L"CVPORT", 1), RTNORM);
}

TEST_F(SystemVariables, KeepAViewportForEachDrawing)
{
    KdDbDatabase other;
    setShort(L"CVPORT", 5);
    kddbHostApplicationServices()->setWorkingDatabase(&other);
    EXPECT_EQ(getShort(L"CVPORT"), 2);
}

TEST_F(SystemVariables, AreListedByName)
{
    const auto all = kdedSystemVariables();
    EXPECT_TRUE(std::is_sorted(all.begin(), all.end(), [](const auto& a, const auto& b) {
        return std::wstring_view(a.name) < b.name;
    }));
    EXPECT_EQ(std::adjacent_find(
                  all.begin(), all.end(),
                  [](const auto& a, const auto& b) { return std::wstring_view(a.name) == b.name; }),
              all.end());
    for (const wchar_t* name : {L"TILEMODE", L"CVPORT", L"QSELECTLISTVALUES", L"DIMSCALE"})
        EXPECT_THAT(all, Contains(Field(&KdedSystemVariable::name, StrEq(name))));
}

TEST_F(SystemVariables, AreAllReadableAsListed)
{
    for (const KdedSystemVariable& variable : kdedSystemVariables()) {
        resbuf record{};
        ASSERT_EQ(kdedGetVar(variable.name, &record), RTNORM) << variable.name;
        EXPECT_EQ(record.restype, variable.restype) << variable.name;
        if (record.restype == RTSTR)
            kdutDelString(record.resval.rstring);
    }
}

TEST_F(SystemVariables, BeginInsideTheirRange)
{
    for (const KdedSystemVariable& variable : kdedSystemVariables()) {
        const resbuf record = variable.restype == RTSTR ? resbuf{} : get(variable.name);
        const double value = record.restype == RTSHORT  ? record.resval.rint
                             : record.restype == RTREAL ? record.resval.rreal
                                                        : variable.lowest;
        EXPECT_LE(variable.lowest, value) << variable.name;
        EXPECT_GE(variable.highest, value) << variable.name;
    }
}

TEST_F(SystemVariables, AreTakenBackAsTheyWereGivenUnlessReadOnly)
{
    for (const KdedSystemVariable& variable : kdedSystemVariables()) {
        resbuf record = get(variable.name);
        EXPECT_EQ(kdedSetVar(variable.name, &record), variable.readOnly ? RTREJ : RTNORM)
            << variable.name;
        if (record.restype == RTSTR)
            kdutDelString(record.resval.rstring);
    }
}

} // namespace
