#include <values/angle_readers.h>

#include <algorithm>
#include <numbers>

#include <runtime/number_text.h>
#include <values/angle_text.h>
#include <values/degree_mark.h>
#include <values/number_characters.h>

namespace {

bool beginsLikeNumber(const std::wstring& text)
{
    return !text.empty() && (isDigit(text[0]) || text[0] == L'-' || text[0] == L'.');
}

/// Reads what `text` begins with and ignores the rest.
bool readScaled(const std::wstring& text, double halfTurn, double& angle)
{
    if (!beginsLikeNumber(text))
        return false;
    angle = kdReadReal(text) * std::numbers::pi / halfTurn;
    return true;
}

} // namespace

bool readDegrees(std::wstring text, double& angle)
{
    const std::wstring ends = std::wstring(L"Dd") + KdadGetDegreesSymbol();
    text.resize(std::min(text.find_first_of(ends), text.size()));
    if (text.find_first_not_of(L"0123456789.", 1) != std::wstring::npos)
        return false;
    return readScaled(text, 180.0, angle);
}

bool readDegreesMinutesSeconds(std::wstring text, double& angle)
{
    return ConvertToRadians(text.data(), &angle) == RTNORM;
}

bool readGrads(std::wstring text, double& angle)
{
    return readScaled(text, 200.0, angle);
}

bool readRadians(std::wstring text, double& angle)
{
    if (!beginsLikeNumber(text))
        return false;
    angle = kdReadReal(text);
    return true;
}
