#include "inputs.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <system_error>

#include <glob.h>

#include <common/catalog.h>
#include <runtime/utf8.h>

namespace {

bool exists(const std::string& path)
{
    std::error_code noCode;
    return std::filesystem::exists(path, noCode);
}

bool namesADrawing(const std::string& argument)
{
    if (argument.find_first_of("=<>") != std::string::npos)
        return false; // a filter may speak of a drawing's name
    const std::wstring name = comparable(kdFromUtf8(argument));
    return name.ends_with(L".dxf") || name.ends_with(L".dwg");
}

/// The files that a pattern matches, sorted; none if it is no pattern.
std::vector<std::string> matchesOf(const std::string& pattern)
{
    std::vector<std::string> files;
    glob_t found{};
    if (pattern.find_first_of("*?[") != std::string::npos &&
        glob(pattern.c_str(), 0, nullptr, &found) == 0)
        files.assign(found.gl_pathv, found.gl_pathv + found.gl_pathc);
    globfree(&found);
    return files;
}

void readList(std::istream& stream, std::vector<std::string>& drawings)
{
    for (std::string line; std::getline(stream, line);) {
        if (line.ends_with('\r'))
            line.pop_back();
        if (!line.empty())
            drawings.push_back(line);
    }
}

bool takeList(const std::string& file, Inputs& inputs, std::string& problem)
{
    std::ifstream stream(file);
    readList(stream, inputs.drawings);
    if (stream.is_open() && !stream.bad())
        return true;
    problem = file + ": the list of drawings can't be read";
    return false;
}

bool takeFilter(const std::string& argument, Inputs& inputs, std::string& problem)
{
    if (inputs.filter.empty()) {
        inputs.filter = argument;
        return true;
    }
    problem = "\"" + inputs.filter + "\" and \"" + argument +
              "\" are two filters; join them with \"and\", or chain them with --then";
    return false;
}

} // namespace

bool sortArguments(const std::vector<std::string>& arguments, Inputs& inputs, std::string& problem)
{
    for (const std::string& argument : arguments) {
        const bool isList = argument.starts_with('@') && exists(argument.substr(1));
        if (argument == "-") {
            readList(std::cin, inputs.drawings);
        } else if (isList) {
            if (!takeList(argument.substr(1), inputs, problem))
                return false;
        } else if (exists(argument)) {
            inputs.drawings.push_back(argument);
        } else if (const auto files = matchesOf(argument); !files.empty()) {
            inputs.drawings.insert(inputs.drawings.end(), files.begin(), files.end());
        } else if (namesADrawing(argument)) {
            inputs.drawings.push_back(argument); // opening it tells that it is missing
        } else if (!takeFilter(argument, inputs, problem)) {
            return false;
        }
    }
    return true;
}
