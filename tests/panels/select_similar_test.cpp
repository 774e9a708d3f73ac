#include <kwdraw/panels/select_similar.h>

#include <algorithm>

#include <common/filter_file.h>
#include <editor/selection_sets.h>
#include <kwdraw/panels/filter_running.h>

#include "support.h"

using namespace panels_test;
using namespace std::chrono_literals;
using testing::ElementsAre;

namespace {

class Similar : public PanelsTest
{
  protected:
    /// The only type of the entities.
    const MergedType& read(const Ids& ids)
    {
        merge.start(ids);
        while (!merge.isDone())
            merge.readOn(1000ms);
        return merge.types().front();
    }
    MergedProperty property(const std::wstring& name)
    {
        for (const MergedProperty& each : merge.common(nullptr)) {
            if (each.name() == name)
                return each;
        }
        ADD_FAILURE() << "no such property";
        return {};
    }
    Ids run(const RunRequest& request)
    {
        EXPECT_TRUE(carryOut(module, request, problem)) << problem;
        return selection();
    }

    PropertyMerge merge{module};
    std::string problem;
};

TEST_F(Similar, SelectsTheTypeWithTheValue)
{
    openMany(40);
    const MergedType& circle = read({ofType(L"Circle").front()});
    EXPECT_EQ(run(*similarRequest(&circle, property(L"Radius"), 0)), ofType(L"Circle"));
    EXPECT_THAT(printed, ElementsAre(L"\n4 item(s) selected."));
}

TEST_F(Similar, SelectsByOneCoordinate)
{
    openMany(40);
    const Ids lines = ofType(L"Line");
    const MergedType& line = read({lines[2]});
    EXPECT_EQ(run(*similarRequest(&line, property(L"Start"), 2)), Ids{lines[2]});
    EXPECT_EQ(run(*similarRequest(&line, property(L"Start"), 1)), lines);
}

TEST_F(Similar, SelectsInAllTypes)
{
    openMany(40);
    read({ofType(L"Line").front()}); // on layer B
    const Ids found = run(*similarRequest(nullptr, property(L"Layer"), 0));
    EXPECT_EQ(found.size(), 20u);
}

TEST_F(Similar, LeavesOutTheseWhenTheyAreExcluded)
{
    openMany(40);
    const MergedType& circle = read({ofType(L"Circle").front()});
    RunRequest request = *similarRequest(&circle, property(L"Radius"), 0);
    request.exclude = true;
    EXPECT_EQ(run(request), ofType(L"Line"));
}

TEST_F(Similar, CantBeAskedForByWhatVaries)
{
    openMany(40);
    const MergedType& line = read(ofType(L"Line"));
    EXPECT_FALSE(similarRequest(&line, property(L"Layer"), 0));
    EXPECT_FALSE(similarRequest(&line, property(L"Start"), 2));
    EXPECT_TRUE(similarRequest(&line, property(L"Start"), 1));
}

TEST_F(Similar, CantBeAskedForByAWholePoint)
{
    openMany(4);
    const MergedType& line = read({ofType(L"Line").front()});
    EXPECT_FALSE(similarRequest(&line, property(L"Start"), 0));
    EXPECT_FALSE(similarRequest(&line, property(L"Layer"), 1));
}

/// Whatever the panel shows of any entity finds at least this entity again.
TEST_F(Similar, FindsTheEntityThatItBeganWithByEachOfItsValues)
{
    openKinds();
    std::size_t tried = 0;
    for (const KdDbObjectId id : everything()) {
        const MergedType type = read({id});
        for (const MergedProperty& each : merge.common(nullptr)) {
            for (int axis = 0; axis <= (each.isPoint() ? each.dimensions() : 0); ++axis) {
                const auto request = similarRequest(&type, each, axis);
                if (!request)
                    continue;
                ++tried;
                ASSERT_TRUE(carryOut(module, *request, problem))
                    << problem << ": " << testing::PrintToString(filterText(*request));
                const Ids found = selection();
                EXPECT_TRUE(std::find(found.begin(), found.end(), id) != found.end())
                    << testing::PrintToString(filterText(*request));
            }
        }
    }
    EXPECT_GT(tried, 200u);
}

TEST_F(Similar, IsToldAsAFilterThatSelectsTheSame)
{
    openMany(40);
    const MergedType& line = read({ofType(L"Line").front()});
    const RunRequest request = *similarRequest(&line, property(L"Layer"), 0);
    EXPECT_EQ(filterText(request), L"Line: General: Layer = B");
    const Ids found = run(request);
    ASSERT_TRUE(runFilter(module, filterText(request), {}, problem)) << problem;
    EXPECT_EQ(selection(), found);
    EXPECT_EQ(filterText(*similarRequest(nullptr, property(L"Layer"), 0)),
              L"*: General: Layer = B");
    EXPECT_EQ(filterText(*similarRequest(&line, property(L"Start"), 1)),
              L"Line: Geometry: Start X = 0");
}

TEST_F(Similar, KnowsThePropertiesOfAllTypes)
{
    openMany(4);
    read({ofType(L"Line").front()});
    EXPECT_TRUE(isGeneral(property(L"Hyperlink")));
    EXPECT_FALSE(isGeneral(property(L"Length")));
}

TEST_F(Similar, WithoutAPropertyIsOfTheSameTypeOnTheSameLayer)
{
    openMany(40);
    ASSERT_TRUE(selectSimilar(module, {ofType(L"Line").front()}, problem)) << problem;
    const Ids found = selection();
    EXPECT_EQ(found.size(), 20u); // the odd ones; the circles are on the other layer
    EXPECT_THAT(printed, ElementsAre(L"\n20 item(s) selected."));
}

TEST_F(Similar, WithoutAPropertyIsLikeOneOfTheEntities)
{
    openMany(40);
    const Ids lines = ofType(L"Line");
    const Ids circles = ofType(L"Circle");
    ASSERT_TRUE(selectSimilar(module, {lines[0], circles[0]}, problem)) << problem;
    EXPECT_EQ(selection().size(), 24u);
    ASSERT_TRUE(selectSimilar(module, {lines[0], lines[1]}, problem)) << problem;
    EXPECT_EQ(handles(selection()), handles(lines));
}

TEST_F(Similar, WithoutAPropertyNeedsSomethingSelected)
{
    openMany(4);
    EXPECT_FALSE(selectSimilar(module, {}, problem));
    EXPECT_EQ(problem, "nothing is selected");
}

TEST_F(Similar, TellsWhenTheSpaceIsEmpty)
{
    openMany(0);
    RunRequest request;
    EXPECT_FALSE(carryOut(module, request, problem));
    EXPECT_EQ(problem, "the space holds no objects");
}

class RunFilter : public Similar
{
};

TEST_F(RunFilter, SelectsWhatSeveralComparisonsFind)
{
    openMany(40);
    ASSERT_TRUE(runFilter(module, L"Circle or Line: \"Start Y\" < 2", {}, problem)) << problem;
    EXPECT_EQ(selection().size(), 5u);
    EXPECT_THAT(printed, ElementsAre(L"\n5 item(s) selected."));
}

TEST_F(RunFilter, TakesTheFiltersThatItNames)
{
    openMany(40);
    FilterFile filters;
    filters.readAll(file("filters.txt"));
    ASSERT_TRUE(filters.save(L"round", L"Circle", problem));
    ASSERT_TRUE(runFilter(module, L"@round", filters, problem)) << problem;
    EXPECT_EQ(selection(), ofType(L"Circle"));
    EXPECT_FALSE(runFilter(module, L"@other", filters, problem));
    EXPECT_EQ(problem.substr(0, problem.find(';')), "no filter \"other\"");
}

TEST_F(RunFilter, LeavesTheSelectionWhenItCantBeRun)
{
    openMany(40);
    const Ids before = ofType(L"Circle");
    select(before);
    EXPECT_FALSE(runFilter(module, L"Circle and Line: Radius > 5", {}, problem));
    EXPECT_NE(problem.find("no property \"Radius\""), std::string::npos) << problem;
    EXPECT_NE(problem.find('^'), std::string::npos) << "the place is marked";
    EXPECT_EQ(selection(), before);
    EXPECT_FALSE(runFilter(module, L"(Circle", {}, problem));
    EXPECT_EQ(problem, "this bracket is never closed\n  (Circle\n  ^");
}

TEST_F(RunFilter, TellsThoseWhoFollowTheSelectionOfTheOutcomeAlone)
{
    openMany(40);
    std::vector<std::size_t> told;
    const auto before = kdedSetPickfirstHook([&](int) { told.push_back(selection().size()); });
    EXPECT_TRUE(runFilter(module, L"Circle or Line: \"Start Y\" < 2", {}, problem)) << problem;
    kdedSetPickfirstHook(before);
    ASSERT_FALSE(told.empty());
    EXPECT_TRUE(std::all_of(told.begin(), told.end(), [](std::size_t n) { return n == 5; }));
}

} // namespace
