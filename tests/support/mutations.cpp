#include "mutations.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace fs = std::filesystem;

namespace {

using Lines = std::vector<std::string>;

Lines linesOf(const std::string& text)
{
    Lines lines;
    std::size_t begin = 0;
    while (begin < text.size()) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        lines.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return lines;
}

std::string textOf(const Lines& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text.append(line).push_back('\n');
    return text;
}

/// The line of the code of any group; a file that is mutated has some hundred of them at the least.
std::size_t anyGroup(const Lines& lines, Random& random)
{
    return random() % (lines.size() / 2 - 1) * 2;
}

void dropGroup(Lines& lines, Random& random)
{
    const auto at = lines.begin() + static_cast<std::ptrdiff_t>(anyGroup(lines, random));
    lines.erase(at, at + 2);
}

void doubleGroup(Lines& lines, Random& random)
{
    const std::size_t from = anyGroup(lines, random);
    const Lines group{lines[from], lines[from + 1]};
    const auto to = lines.begin() + static_cast<std::ptrdiff_t>(anyGroup(lines, random));
    lines.insert(to, group.begin(), group.end());
}

void swapGroups(Lines& lines, Random& random)
{
    const std::size_t a = anyGroup(lines, random);
    const std::size_t b = anyGroup(lines, random);
    std::swap(lines[a], lines[b]);
    std::swap(lines[a + 1], lines[b + 1]);
}

void changeValue(Lines& lines, Random& random)
{
    static const std::string values[] = {
        "",     "0",   "-1",          "1e400", "nan",    "-inf",       "4294967295", "2147483648",
        "SECT", "EOF", "1e-320",      "{",     "}",      "FFFFFFFFFF", "*U1",        "-99999999999",
        "10",   "70",  "\\U+D800^ ^", "\xFF",  "ENDTAB", "SEQEND",     "1,5",        "99999999"};
    lines[anyGroup(lines, random) + 1] = values[random() % std::size(values)];
}

void changeCode(Lines& lines, Random& random)
{
    static const std::string codes[] = {"0",   "5",    "10",   "90",   "-5",  "100",  "101",
                                        "102", "330",  "1001", "1004", "999", "x",    "99999",
                                        "",    "1e10", "310",  "92",   "70",  "1071", "360"};
    lines[anyGroup(lines, random)] = codes[random() % std::size(codes)];
}

void dropLine(Lines& lines, Random& random)
{
    lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(random() % lines.size()));
}

using Mutate = void (*)(Lines&, Random&);
constexpr Mutate kMutations[] = {dropGroup,   doubleGroup, swapGroups,
                                 changeValue, changeCode,  dropLine};

std::string mutatedText(const std::string& content, Random& random)
{
    Lines lines = linesOf(content);
    const std::size_t faults = 1 + random() % 5;
    for (std::size_t i = 0; i < faults; ++i)
        kMutations[random() % std::size(kMutations)](lines, random);
    return textOf(lines);
}

std::string mutatedBytes(const std::string& original, Random& random)
{
    std::string content = original;
    const std::size_t faults = 1 + random() % 5;
    for (std::size_t i = 0; i < faults; ++i)
        content[22 + random() % (content.size() - 22)] = static_cast<char>(random());
    return content;
}

} // namespace

std::string mutatedDrawing(const std::string& content, Random& random)
{
    const bool isBinary = content.find('\0') != std::string::npos;
    return isBinary ? mutatedBytes(content, random) : mutatedText(content, random);
}

std::string cutDrawing(const std::string& content, Random& random)
{
    return content.substr(0, random() % content.size());
}

std::vector<fs::path> sampleDrawings()
{
    const char* stated = std::getenv("KW_SAMPLE_DRAWINGS");
    const fs::path root = KW_SOURCE_DIR;
    const fs::path collection = stated ? fs::path(stated) : root / "../shared/drawings";
    std::vector<fs::path> paths;
    for (const fs::path& folder : {root / "examples", collection}) {
        std::error_code missing;
        for (fs::recursive_directory_iterator at(folder, missing), end; at != end; ++at) {
            if (at->path().extension() == ".dxf" && at->file_size() > 0)
                paths.push_back(at->path());
        }
    }
    std::ranges::sort(paths);
    return paths;
}

int affordableCopies(std::uintmax_t size, std::uintmax_t bytes, int most)
{
    const std::uintmax_t count = bytes / std::max<std::uintmax_t>(size, 1);
    return static_cast<int>(std::clamp<std::uintmax_t>(count, 1, static_cast<unsigned>(most)));
}

std::string contentOfFile(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string testNameOf(const fs::path& path)
{
    std::string name = (path.parent_path().filename() / path.filename()).string();
    std::replace_if(
        name.begin(), name.end(), [](unsigned char c) { return !std::isalnum(c); }, '_');
    return name;
}
