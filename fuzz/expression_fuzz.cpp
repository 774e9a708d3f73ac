/// Feeds any text to the reader of filters. What it accepts must be written and read back as the
/// same; what it refuses it must refuse at a place inside the text.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include <common/expression.h>
#include <runtime/utf8.h>

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

bool areSame(const Comparison& a, const Comparison& b)
{
    return a.subject == b.subject && a.op == b.op && a.value == b.value;
}

void readBack(const Expression& expression)
{
    for (const Expression& part : expression.parts)
        readBack(part);
    if (expression.kind != Expression::Kind::Comparison)
        return;
    const auto again = readExpression(textOf(expression.comparison));
    const auto* read = std::get_if<Expression>(&again);
    require(read && read->kind == Expression::Kind::Comparison);
    require(areSame(read->comparison, expression.comparison));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::wstring text = kdFromUtf8({reinterpret_cast<const char*>(data), size});
    const auto read = readExpression(text);
    if (const auto* expression = std::get_if<Expression>(&read)) {
        readBack(*expression);
    } else {
        const auto& problem = std::get<ExpressionProblem>(read);
        require(problem.place <= text.size() && !problem.reason.empty());
        require(!markedPlace(text, problem.place).empty());
    }
    return 0;
}
