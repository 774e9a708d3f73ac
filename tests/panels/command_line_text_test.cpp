#include <common/command_line_text.h>

#include <filesystem>

#include <QStringList>

#include "support.h"

using namespace panels_test;

namespace {

/// Runs of the module, told as lines of kwselect, which are run to compare.
class Line : public PanelsTest
{
  protected:
    RunRequest request(const wchar_t* type, const wchar_t* className, const wchar_t* name,
                       const wchar_t* op, const wchar_t* value, int axis = 0)
    {
        RunRequest run;
        run.typeName = type;
        run.className = className;
        run.op = op;
        run.value = value;
        run.axis = axis;
        Catalog catalog(module);
        for (const TypeEntry& each : catalog.types()) {
            if (*type && each.displayName != type)
                continue;
            for (const PropertyEntry& property : catalog.propertiesOf(each)) {
                if (run.key.empty() && property.listName() == name) {
                    run.key = property.key;
                    run.kind = property.restype();
                }
            }
        }
        EXPECT_EQ(run.key.empty(), !*name);
        return run;
    }
    RunRequest bigCircles() { return request(L"Circle", L"AcDbCircle", L"Radius", L">", L"10"); }
    RunRequest onWalls() { return request(L"", L"", L"Layer", L"=", L"WALLS"); }

    Ids run(const RunRequest& each)
    {
        quick_select::Result result{};
        module.run(each.request(), nullptr, result);
        EXPECT_EQ(result.outcome, quick_select::Outcome::Done);
        return selection();
    }

    CommandLineText textOf(const std::vector<RunRequest>& runs, const std::string& space = "model")
    {
        Catalog catalog(module);
        return commandLineFor(runs, drawingFile, space, catalog);
    }

    /// The runs and the line that stands for them select the same, and something.
    void expectSame(const std::vector<RunRequest>& runs)
    {
        Ids selected;
        for (const RunRequest& each : runs)
            selected = run(each);
        EXPECT_FALSE(selected.empty());
        const CommandLineText line = textOf(runs);
        EXPECT_EQ(line.note, "");
        std::vector<std::string> printedHandles;
        for (const QString& handle : kwselect(QString::fromStdString(line.text)))
            printedHandles.push_back(handle.toStdString());
        EXPECT_EQ(printedHandles, handles(selected)) << line.text;
    }
};

TEST_F(Line, NamesTypePropertyAndValue)
{
    openPlan();
    EXPECT_EQ(textOf({bigCircles()}).text,
              "kwselect " + drawingFile.string() + " --filter 'Circle: Radius > 10'");
    EXPECT_EQ(textOf({onWalls()}).text,
              "kwselect " + drawingFile.string() + " --filter 'Layer = WALLS'");
    expectSame({bigCircles()});
    expectSame({onWalls()});
}

TEST_F(Line, SelectsByEachOperator)
{
    openPlan();
    for (const wchar_t* op : {L"=", L"<>", L">", L"<", L""})
        expectSame({request(L"Circle", L"AcDbCircle", L"Radius", op, L"11")});
    expectSame({request(L"Text", L"AcDbText", L"Contents", L"*", L"*o*")});
}

TEST_F(Line, SelectsByOneCoordinate)
{
    openPlan();
    expectSame({request(L"Circle", L"AcDbCircle", L"Center", L">", L"8000", 1)});
    EXPECT_EQ(textOf({request(L"Circle", L"AcDbCircle", L"Center", L">", L"8000", 1)}).text,
              "kwselect " + drawingFile.string() + " --filter 'Circle: Center X > 8000'");
}

TEST_F(Line, SelectsATypeAndEverything)
{
    openPlan();
    expectSame({request(L"Circle", L"AcDbCircle", L"", L"", L"")});
    expectSame({request(L"", L"", L"", L"", L"")});
}

TEST_F(Line, ExcludesTheMatches)
{
    openPlan();
    RunRequest excluding = onWalls();
    excluding.exclude = true;
    expectSame({excluding});
}

TEST_F(Line, ChainsRunsOverTheSelectionAndThoseThatJoinIt)
{
    openPlan();
    RunRequest within = request(L"Line", L"AcDbLine", L"Length", L">", L"2000");
    within.fromSelection = true;
    RunRequest more = bigCircles();
    more.append = true;
    RunRequest others = request(L"Circle", L"AcDbCircle", L"Radius", L">", L"12");
    others.fromSelection = true;
    others.exclude = true;
    expectSame({onWalls(), within});
    expectSame({onWalls(), more});
    expectSame({onWalls(), more, others});
}

/// A selection of lines alone has all properties of lines in common.
TEST_F(Line, AsksASelectionForWhatItHasInCommon)
{
    openPlan();
    RunRequest within = request(L"Line", L"AcDbLine", L"Length", L">", L"3000");
    within.typeName.clear();
    within.className.clear();
    within.fromSelection = true;
    expectSame({request(L"Line", L"AcDbLine", L"", L"", L""), within});
}

TEST_F(Line, NamesTheSpaceAndTheTolerance)
{
    openPlan();
    RunRequest run = bigCircles();
    run.tolerance = 0.5;
    EXPECT_EQ(textOf({run}, "paper:Sheet 1").text,
              "kwselect " + drawingFile.string() +
                  " --filter 'Circle: Radius > 10' --space 'paper:Sheet 1' --tolerance 0.5");
    expectSame({run});
}

TEST_F(Line, GivesTheFilterAloneForWhatWasPickedOrSelectedByHand)
{
    openPlan();
    RunRequest picked = bigCircles();
    picked.fromSelection = picked.overPicked = true;
    RunRequest within = bigCircles();
    within.fromSelection = true;
    RunRequest joining = bigCircles();
    joining.append = true;
    for (const RunRequest& run : {picked, within, joining}) {
        const CommandLineText text = textOf({run});
        EXPECT_EQ(text.text,
                  run.fromSelection ? "Circle: Geometry: Radius > 10" : "Circle: Radius > 10");
        EXPECT_NE(text.note.find("by hand"), std::string::npos) << text.note;
    }
    EXPECT_EQ(textOf({onWalls(), picked}).text, "Circle: Geometry: Radius > 10");
}

TEST_F(Line, SurvivesTheShell)
{
    openPlan();
    const std::filesystem::path odd = file("it's a \"plan\" $HOME.dxf");
    std::filesystem::copy(drawingFile, odd);
    open(odd);
    expectSame({onWalls()});
    expectSame(
        {request(L"Text", L"AcDbText", L"Contents", L"<>", L"it's \"$HOME\" and `ls` \\ *")});
}

TEST_F(Line, QuotesWhatTheFilterWouldTakeApart)
{
    openPlan();
    EXPECT_NE(textOf({request(L"Text", L"AcDbText", L"Contents", L"=", L"a and b")})
                  .text.find("Contents = \"a and b\""),
              std::string::npos);
    EXPECT_NE(textOf({request(L"Text", L"AcDbText", L"Contents", L"=", L"")})
                  .text.find("Contents = \"\""),
              std::string::npos);
}

TEST_F(Line, FindsEveryPropertyOfEveryTypeByItsText)
{
    openKinds();
    Catalog catalog(module);
    for (const TypeEntry& type : catalog.types()) {
        for (const PropertyEntry& property : catalog.propertiesOf(type)) {
            RunRequest run;
            run.typeName = type.displayName;
            run.className = type.className;
            run.key = property.key;
            run.axis = property.isPoint() ? 1 : 0;
            run.kind = property.restype();
            const auto comparison = comparisonOf(run, catalog);
            ASSERT_TRUE(comparison) << testing::PrintToString(type.displayName + property.key);
            ResolvedFilter filter;
            FilterProblem problem;
            ASSERT_TRUE(resolve(*comparison, catalog, filter, problem)) << problem.sentence;
            EXPECT_EQ(filter.property->property.key, property.key);
        }
    }
}

struct WordRow
{
    const char* name;
    const char* word;
    const char* quoted;
};

class ShellWord : public testing::TestWithParam<WordRow>
{
};

TEST_P(ShellWord, IsQuotedWhereItHasToBe)
{
    EXPECT_EQ(shellWord(GetParam().word), GetParam().quoted);
}

const WordRow kWords[] = {
    {"plain", "plans/a-1.dxf", "plans/a-1.dxf"},
    {"empty", "", "''"},
    {"blank", "a b", "'a b'"},
    {"quote", "it's", "'it'\\''s'"},
    {"dollar", "$HOME", "'$HOME'"},
    {"star", "*.dxf", "'*.dxf'"},
    {"newline", "a\nb", "'a\nb'"},
    {"tilde", "~/a", "'~/a'"},
    {"umlaut", "\xc3\xbc", "'\xc3\xbc'"},
};
INSTANTIATE_TEST_SUITE_P(Rows, ShellWord, testing::ValuesIn(kWords),
                         [](const auto& row) { return std::string(row.param.name); });

class Chain : public testing::Test
{
  protected:
    static RunRequest run(bool fromSelection, bool append)
    {
        RunRequest request;
        request.fromSelection = fromSelection;
        request.append = append;
        return request;
    }
    RunChain chain;
};

TEST_F(Chain, BeginsAnewWithARunThatReplacesTheSelection)
{
    chain.add(run(false, false), 3);
    chain.add(run(true, false), 2);
    EXPECT_EQ(chain.runs().size(), 2u);
    chain.add(run(false, false), 3);
    EXPECT_EQ(chain.runs().size(), 1u);
}

TEST_F(Chain, IsBrokenWhenJoiningEmptiesTheSelection)
{
    chain.add(run(false, false), 3);
    chain.add(run(false, true), 0);
    EXPECT_TRUE(chain.runs().empty());
}

TEST_F(Chain, LeavesOutWhatJoinsTheSelectionThatItCameFrom)
{
    chain.add(run(false, false), 3);
    chain.add(run(true, true), 3);
    EXPECT_EQ(chain.runs().size(), 1u);
}

TEST_F(Chain, IsForgottenWhenTheSelectionIsMadeByHand)
{
    chain.add(run(false, false), 3);
    chain.breakOff();
    chain.add(run(true, false), 1);
    ASSERT_EQ(chain.runs().size(), 1u);
    EXPECT_TRUE(chain.runs().front().fromSelection);
}

} // namespace
