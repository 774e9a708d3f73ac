/// A small host without windows: reads a plan, lists properties, selects.
///
///     plan_host [--provider FILE] PLAN TYPE                        keys and values of the first
///     one plan_host [--provider FILE] PLAN TYPE KEY OPERATOR VALUE     handles of all that match
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include <database/database.h>
#include <editor/selection_sets.h>
#include <runtime/utf8.h>

#include "loaded_module.h"
#include "plan_reader.h"

namespace {

using quick_select::Property;
using quick_select::Type;
using quick_select::Value;

/// A type of the drawing. The texts of a visit live only as long as the visit.
struct FoundType
{
    std::wstring wanted;
    std::wstring className;
    KdDbObjectId example;
};

FoundType findType(const LoadedModule& module, const std::string& name)
{
    FoundType found{kdFromUtf8(name), {}, {}};
    module.listTypes(
        nullptr,
        [](void* context, const Type& type) {
            auto& match = *static_cast<FoundType*>(context);
            if (match.wanted == type.displayName) {
                match.className = type.className;
                match.example = type.example;
            }
        },
        &found);
    if (found.example.isNull())
        throw std::runtime_error("the plan holds no " + name);
    return found;
}

void print(const Value& value)
{
    switch (value.restype) {
    case 48:
    case 5001:
    case 5004:
        std::cout << value.number;
        break;
    case 5002:
    case 5009:
        std::cout << value.point[0] << ' ' << value.point[1] << ' ' << value.point[2];
        break;
    case 280:
    case 290:
    case 5003:
    case 5010:
    case 5011:
        std::cout << value.integer;
        break;
    default:
        std::cout << kdToUtf8(value.text);
    }
}

void listProperties(const LoadedModule& module, const FoundType& type)
{
    const auto printProperty = [](void*, const Property& property) {
        std::cout << kdToUtf8(property.key) << " =";
        for (std::size_t i = 0; i < property.valueCount; ++i) {
            std::cout << ' ';
            print(property.values[i]);
        }
        for (std::size_t i = 0; i < property.choiceCount; ++i) {
            std::cout << (i == 0 ? " of " : ", ");
            print(property.choices[i]);
        }
        std::cout << '\n';
    };
    module.listProperties(type.example, nullptr, true, printProperty, nullptr);
}

/// The kind of value that a property has, which a request has to tell.
int kindOf(const LoadedModule& module, const FoundType& type, const std::wstring& key)
{
    int kind = 0;
    const auto take = [](void* context, const Property& property) {
        if (property.valueCount > 0)
            *static_cast<int*>(context) = property.values[0].restype;
    };
    module.listProperties(type.example, key.c_str(), false, take, &kind);
    if (kind == 0)
        throw std::runtime_error("there is no such property");
    return kind;
}

void select(const LoadedModule& module, const FoundType& type,
            const std::vector<std::string>& comparison)
{
    const std::wstring key = kdFromUtf8(comparison[0]);
    const std::wstring operatorText = kdFromUtf8(comparison[1]);
    const std::wstring value = kdFromUtf8(comparison[2]);
    quick_select::Request request{};
    request.typeName = type.wanted.c_str();
    request.className = type.className.c_str();
    request.propertyKey = key.c_str();
    request.kind = kindOf(module, type, key);
    request.operatorText = operatorText.c_str();
    request.valueText = value.c_str();
    quick_select::Result result{};
    module.run(request, nullptr, result);
    if (result.outcome != quick_select::Outcome::Done)
        throw std::runtime_error("the comparison can't be made");
}

/// What the run has made the selection.
void printSelection()
{
    kds_name set;
    if (kdedSSGetFirst(set) != RTNORM)
        return; // nothing is selected
    long length = 0;
    kdedSSLength(set, &length);
    for (long i = 0; i < length; ++i) {
        kds_name name;
        KdDbObjectId id;
        kdedSSName(set, i, name);
        kddbGetObjectId(id, name);
        std::cout << std::hex << std::uppercase << id.handle() << '\n';
    }
    kdedSSFree(set);
}

void run(std::vector<std::string> arguments)
{
    std::string provider;
    if (arguments.size() > 1 && arguments[0] == "--provider") {
        provider = arguments[1];
        arguments.erase(arguments.begin(), arguments.begin() + 2);
    }
    if (arguments.size() != 2 && arguments.size() != 5)
        throw std::runtime_error("usage: plan_host [--provider FILE] PLAN TYPE"
                                 " [KEY OPERATOR VALUE]");

    KdDbDatabase drawing;
    std::ifstream plan(arguments[0]);
    if (!plan)
        throw std::runtime_error(arguments[0] + " can't be opened");
    if (const int line = readPlan(plan, drawing))
        throw std::runtime_error(arguments[0] + ": line " + std::to_string(line) + " is no entity");
    kddbHostApplicationServices()->setWorkingDatabase(&drawing);

    const LoadedModule module(QUICK_SELECT_MODULE, provider.empty() ? nullptr : provider.c_str());
    const FoundType type = findType(module, arguments[1]);
    if (arguments.size() == 2) {
        listProperties(module, type);
    } else {
        select(module, type, {arguments.begin() + 2, arguments.end()});
        printSelection();
    }
}

} // namespace

int main(int argc, char** argv)
{
    try {
        run({argv + 1, argv + argc});
    } catch (const std::exception& error) {
        std::cerr << "plan_host: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
