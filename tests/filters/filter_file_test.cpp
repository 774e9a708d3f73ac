#include <common/filter_file.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

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

TEST(FilterFilePath, LiesInTheFolderOfSettings)
{
    const char* before = std::getenv("XDG_CONFIG_HOME");
    const std::string kept = before ? before : "";
    setenv("XDG_CONFIG_HOME", "/settings", 1);
    EXPECT_EQ(userFilterFile(), "/settings/kwqselect/filters.txt");
    before ? setenv("XDG_CONFIG_HOME", kept.c_str(), 1) : unsetenv("XDG_CONFIG_HOME");
}

} // namespace
