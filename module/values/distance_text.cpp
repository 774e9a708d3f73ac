#include <values/distance_text.h>

#include <algorithm>
#include <string>

#include <runtime/number_text.h>
#include <values/number_characters.h>

namespace {

constexpr std::wstring_view kExponentMarks = L"eE";
constexpr std::wstring_view kArchitecturalMarks = L"'- /\"";

int readWithExponent(std::wstring& text, double* result)
{
    const int status = parse_as_decimal(text.data(), result);
    if (status == RTNORM)
        *result = kdReadReal(text); // correctly rounded, where the reader above multiplies
    return status;
}

int readUnsigned(std::wstring& text, double* result)
{
    if (text.find_first_of(kExponentMarks) != std::wstring::npos)
        return readWithExponent(text, result);
    if (text.find_first_of(kArchitecturalMarks) != std::wstring::npos)
        return parse_as_architectural(text.data(), result);
    return parse_as_decimal(text.data(), result);
}

} // namespace

int ConvertStringToDistance(const wchar_t* text, int /*units*/, double* result, bool cutAtX)
{
    if (!text || !result)
        return RTERROR;
    std::wstring copy = text;
    trimWhiteSpace(copy.data(), L"b");
    trimWhiteSpace(copy.data(), L"e");
    copy.resize(std::char_traits<wchar_t>::length(copy.c_str()));

    const bool negative = copy.starts_with(L'-');
    if (negative || copy.starts_with(L'+'))
        copy.erase(0, 1);
    if (cutAtX)
        copy.resize(std::min(copy.find_first_of(L"xX"), copy.size()));

    const int status = readUnsigned(copy, result);
    if (negative && *result != 0.0)
        *result = -*result; // on failure too: what could be read keeps its sign
    return status;
}

int stringToDistance(const KdString& text, int units, double& result)
{
    double distance = 0.0;
    const int status = ConvertStringToDistance(text.kwszPtr(), units, &distance, false);
    if (status == RTNORM)
        result = distance;
    return status;
}
