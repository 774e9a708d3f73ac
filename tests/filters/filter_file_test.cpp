#include <common/filter_file.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

namespace {

class Filters : public testing::Test
{
  protected:
    Filters()
    {
        std::string name = (std::filesystem::temp_directory_path() / "filters.XXXXXX").string();
        m_folder = mkdtemp(name.data());
        m_file = m_folder / "filters.txt";
    }
    ~Filters() override { std::filesystem::remove_all(m_folder); }

    bool read(const std::string& content)
    {
        std::ofstream(m_file) << content;
        return m_filters.read(m_file, m_problem);
    }

    Expression expanded(const wchar_t* text)
    {
        auto expression = std::get<Expression>(readExpression(text));
        EXPECT_TRUE(m_filters.expand(expression, m_problem)) << m_problem;
        return expression;
    }

    bool refuses(const wchar_t* text)
    {
        auto expression = std::get<Expression>(readExpression(text));
        return !m_filters.expand(expression, m_problem);
    }

    std::filesystem::path m_folder;
    std::filesystem::path m_file;
    FilterFile m_filters;
    std::string m_problem;
};

TEST_F(Filters, StandOneALineBetweenComments)
{
    ASSERT_TRUE(read("# of the plumber\n\n  pipes = Layer = PIPES \r\nbig=Circle: Radius > 5\n"));
    ASSERT_EQ(m_filters.filters().size(), 2u);
    EXPECT_EQ(m_filters.filters()[0].name, L"pipes");
    EXPECT_EQ(m_filters.filters()[0].text, L"Layer = PIPES");
    EXPECT_EQ(m_filters.filters()[0].line, 3u);
    EXPECT_EQ(m_filters.filters()[1].text, L"Circle: Radius > 5");
}

TEST_F(Filters, AreFoundWithoutCase)
{
    ASSERT_TRUE(read("Pipes = Layer = PIPES\n"));
    ASSERT_NE(m_filters.find(L"PIPES"), nullptr);
    EXPECT_EQ(m_filters.find(L"pipe"), nullptr);
}

TEST_F(Filters, OfAMissingFileAreNone)
{
    EXPECT_TRUE(m_filters.read(m_folder / "none.txt", m_problem));
    EXPECT_TRUE(m_filters.filters().empty());
}

TEST_F(Filters, ThatAreWrongAreToldWithFileAndLine)
{
    ASSERT_TRUE(read("good = Circle\n"));
    EXPECT_FALSE(read("a = Circle\nb = (Circle\n"));
    EXPECT_EQ(m_problem, m_file.string() + ":2: this bracket is never closed\n  (Circle\n  ^");
    EXPECT_FALSE(read("nothing here\n"));
    EXPECT_NE(m_problem.find(":1: a line is a name"), std::string::npos) << m_problem;
    EXPECT_FALSE(read("two words = Circle\n"));
    EXPECT_NE(m_problem.find("can't be the name"), std::string::npos) << m_problem;
    EXPECT_NE(m_filters.find(L"good"), nullptr); // what was read before stays
}

TEST_F(Filters, ThatAreNoFileCantBeRead)
{
    EXPECT_FALSE(m_filters.read(m_folder, m_problem));
    EXPECT_NE(m_problem.find("can't be read"), std::string::npos) << m_problem;
}

TEST_F(Filters, TakeThePlacesOfTheirNames)
{
    ASSERT_TRUE(read("pipes = Layer = HOT or Layer = COLD\nall = @pipes or Layer = WASTE\n"));
    const Expression expression = expanded(L"Circle and not @all");
    ASSERT_EQ(expression.kind, Expression::Kind::And);
    const Expression& all = expression.parts[1].parts[0];
    ASSERT_EQ(all.kind, Expression::Kind::Or);
    EXPECT_EQ(all.parts[0].kind, Expression::Kind::Or);
    EXPECT_EQ(all.parts[0].parts[1].comparison.value, L"COLD");
    EXPECT_EQ(all.parts[1].comparison.value, L"WASTE");
}

TEST_F(Filters, ThatNameThemselvesAreRefused)
{
    ASSERT_TRUE(read("a = @b\nb = Circle or @a\nc = @c\n"));
    EXPECT_TRUE(refuses(L"@a"));
    EXPECT_EQ(m_problem, "the filter \"a\" names itself");
    EXPECT_TRUE(refuses(L"not @c"));
}

TEST_F(Filters, ThatAreUnknownAreAnsweredWithTheNearestName)
{
    ASSERT_TRUE(read("pipes = Circle\n"));
    EXPECT_TRUE(refuses(L"@pipe"));
    EXPECT_NE(m_problem.find("did you mean \"pipes\"?"), std::string::npos) << m_problem;
}

/// A file with comments, a filter that names another, and a line that is wrong.
class ChangedFilters : public Filters
{
  protected:
    ChangedFilters()
    {
        std::ofstream(m_file) << "# mine\n\npipes = Layer = PIPES\nno filter\n"
                                 "all = @Pipes or @PIPES or Circle\n";
        m_filters.readAll(m_file);
    }

    std::string content() const
    {
        std::ifstream stream(m_file);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
};

TEST_F(ChangedFilters, AreReadAsFarAsTheyAreRight)
{
    const FilterFile::Problems problems = m_filters.readAll(m_file);
    ASSERT_EQ(problems.size(), 1u);
    EXPECT_EQ(problems[0], m_file.string() + ":4: a line is a name, \"=\" and a filter");
    ASSERT_EQ(m_filters.filters().size(), 2u);
    EXPECT_EQ(m_filters.filters()[1].line, 5u);
}

TEST_F(ChangedFilters, KeepCommentsAndUnknownLinesWhenOneIsAdded)
{
    ASSERT_TRUE(m_filters.save(L"big", L"Circle: Radius > 5", m_problem)) << m_problem;
    EXPECT_EQ(content(), "# mine\n\npipes = Layer = PIPES\nno filter\n"
                         "all = @Pipes or @PIPES or Circle\nbig = Circle: Radius > 5\n");
    EXPECT_EQ(m_filters.find(L"big")->text, L"Circle: Radius > 5");
}

TEST_F(ChangedFilters, AreReplacedByTheirNameInAnyCase)
{
    ASSERT_TRUE(m_filters.save(L"PIPES", L"Layer = HOT", m_problem)) << m_problem;
    EXPECT_EQ(content(), "# mine\n\npipes = Layer = HOT\nno filter\n"
                         "all = @Pipes or @PIPES or Circle\n");
}

TEST_F(ChangedFilters, AreRenamedWhereOthersNameThem)
{
    ASSERT_TRUE(m_filters.rename(L"pipes", L"tubes", m_problem)) << m_problem;
    EXPECT_EQ(content(), "# mine\n\ntubes = Layer = PIPES\nno filter\n"
                         "all = @tubes or @tubes or Circle\n");
}

TEST_F(ChangedFilters, CanChangeTheCaseOfTheirName)
{
    ASSERT_TRUE(m_filters.rename(L"pipes", L"Pipes", m_problem)) << m_problem;
    EXPECT_EQ(m_filters.find(L"pipes")->name, L"Pipes");
}

TEST_F(ChangedFilters, GoWithoutTheOthers)
{
    ASSERT_TRUE(m_filters.remove(L"all", m_problem)) << m_problem;
    EXPECT_EQ(content(), "# mine\n\npipes = Layer = PIPES\nno filter\n");
}

TEST_F(ChangedFilters, StayWhileOthersNameThem)
{
    const std::string before = content();
    EXPECT_FALSE(m_filters.remove(L"pipes", m_problem));
    EXPECT_EQ(m_problem, "the filter \"all\" names \"pipes\"");
    EXPECT_EQ(content(), before);
}

TEST_F(ChangedFilters, TakeWhatOthersHaveWrittenMeanwhile)
{
    std::ofstream(m_file) << "# theirs\npipes = Layer = COLD\n";
    ASSERT_TRUE(m_filters.save(L"big", L"Circle", m_problem)) << m_problem;
    EXPECT_EQ(content(), "# theirs\npipes = Layer = COLD\nbig = Circle\n");
}

TEST_F(ChangedFilters, MakeTheirFolder)
{
    FilterFile filters;
    filters.readAll(m_folder / "deep" / "filters.txt");
    ASSERT_TRUE(filters.save(L"big", L"Circle", m_problem)) << m_problem;
    EXPECT_TRUE(std::filesystem::exists(m_folder / "deep" / "filters.txt"));
}

TEST_F(ChangedFilters, TellWhenTheFileCantBeWritten)
{
    std::ofstream(m_folder / "file") << "in the way";
    FilterFile filters;
    filters.readAll(m_folder / "file" / "filters.txt");
    EXPECT_FALSE(filters.save(L"big", L"Circle", m_problem));
    EXPECT_EQ(m_problem,
              (m_folder / "file" / "filters.txt").string() + ": The folder does not exist.");
}

struct RefusedRow
{
    const char* name;
    const wchar_t* filter;
    const wchar_t* text;
    const char* problem;
};

class RefusedFilter : public ChangedFilters, public testing::WithParamInterface<RefusedRow>
{
};

TEST_P(RefusedFilter, LeavesTheFileAsItWas)
{
    const std::string before = content();
    EXPECT_FALSE(m_filters.save(GetParam().filter, GetParam().text, m_problem));
    EXPECT_EQ(m_problem.substr(0, m_problem.find('\n')), GetParam().problem);
    EXPECT_EQ(content(), before);
}

const RefusedRow kRefused[] = {
    {"withoutName", L"", L"Circle", "\"\" can't be the name of a filter"},
    {"nameWithBlank", L"two words", L"Circle", "\"two words\" can't be the name of a filter"},
    {"nameOfAComment", L"#big", L"Circle", "\"#big\" can't be the name of a filter"},
    {"nameWithEqualSign", L"a=b", L"Circle", "\"a=b\" can't be the name of a filter"},
    {"noFilter", L"big", L"(Circle", "this bracket is never closed"},
    {"twoLines", L"big", L"Text: Contents = \"a\nb\"", "a filter stands on one line"},
};
INSTANTIATE_TEST_SUITE_P(Rows, RefusedFilter, testing::ValuesIn(kRefused),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(ChangedFilters, AreNotRenamedToANameThatIsTaken)
{
    const std::string before = content();
    EXPECT_FALSE(m_filters.rename(L"pipes", L"ALL", m_problem));
    EXPECT_EQ(m_problem, "there is a filter \"ALL\" already");
    EXPECT_FALSE(m_filters.rename(L"none", L"other", m_problem));
    EXPECT_EQ(m_problem, "there is no filter \"none\"");
    EXPECT_FALSE(m_filters.rename(L"pipes", L"two words", m_problem));
    EXPECT_EQ(m_problem, "\"two words\" can't be the name of a filter");
    EXPECT_EQ(content(), before);
}

TEST(FilterFilePath, LiesInTheFolderOfSettings)
{
    const char* before = std::getenv("XDG_CONFIG_HOME");
    const std::string kept = before ? before : "";
    setenv("XDG_CONFIG_HOME", "/settings", 1);
    EXPECT_EQ(userFilterFile(), "/settings/kwqselect/filters.txt");
    before ? setenv("XDG_CONFIG_HOME", kept.c_str(), 1) : unsetenv("XDG_CONFIG_HOME");
}

} // namespace
