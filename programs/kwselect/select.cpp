#include "select.h"

#include <iostream>
#include <vector>

#include <database/object.h>
#include <editor/selection_sets.h>
#include <exchange/drawing_writer.h>
#include <runtime/utf8.h>

#include "choice.h"
#include "exit_status.h"
#include "handle_text.h"

namespace {

using quick_select::Outcome;

constexpr int kNoKind = 5000;

bool fail(const Options& options, const std::string& problem)
{
    std::cerr << "kwselect: " << options.drawing << ": " << problem << '\n';
    return false;
}

/// The filter in the module's own terms. The texts live as long as this object.
struct Filter
{
    Choice choice;
    std::wstring op;
    std::wstring value;
};

bool readFilter(const Module& module, const Options& options, Filter& filter)
{
    if (!choose(module, options, filter.choice))
        return false;
    if (!filter.choice.property) {
        if (!options.op.empty() || options.value)
            return fail(options, "an operator or a value needs --property");
        return true;
    }
    const std::string op = !options.op.empty() ? options.op : options.value ? "=" : "all";
    const Lookup<std::wstring> found =
        findOperator(operatorsFor(module, filter.choice.property->property.restype()), op);
    if (!found.found)
        return fail(options, found.problem);
    filter.op = *found.found;
    if (!filter.op.empty() && !options.value)
        return fail(options, "the operator \"" + op + "\" needs --value");
    filter.value = kdFromUtf8(options.value.value_or(""));
    return true;
}

quick_select::Request requestOf(const Filter& filter, bool exclude)
{
    const auto& type = filter.choice.type;
    const auto& property = filter.choice.property;
    quick_select::Request request{};
    request.typeName = type ? type->displayName.c_str() : L"";
    request.className = type ? type->className.c_str() : L"";
    request.propertyKey = property ? property->property.key.c_str() : L"";
    request.axis = property ? property->axis : 0;
    request.kind = property ? property->property.restype() : kNoKind;
    request.operatorText = filter.op.c_str();
    request.valueText = filter.value.c_str();
    request.exclude = exclude;
    return request;
}

bool told(const Options& options, Outcome outcome)
{
    switch (outcome) {
    case Outcome::BadValue:
        return fail(options, "\"" + options.value.value_or("") +
                                 "\" is no value for the property \"" + options.property + '"');
    case Outcome::BadOperator:
        return fail(options, "no operator \"" + options.op + "\" for this property");
    case Outcome::NoDrawing:
        return fail(options, "the current space can't be read");
    case Outcome::Abandoned:
        return fail(options, "an entity has no property provider");
    case Outcome::NoObjects: // the module has told it
    case Outcome::Done:
        break;
    }
    return true;
}

std::vector<KdDbObjectId> selection()
{
    std::vector<KdDbObjectId> ids;
    kds_name set;
    if (kdedSSGetFirst(set) != RTNORM)
        return ids;
    long length = 0;
    kdedSSLength(set, &length);
    for (long i = 0; i < length; ++i) {
        kds_name name;
        KdDbObjectId id;
        if (kdedSSName(set, i, name) == RTNORM && kddbGetObjectId(id, name) == eOk)
            ids.push_back(id);
    }
    kdedSSFree(set);
    return ids;
}

bool write(const Options& options, const std::vector<KdDbObjectId>& ids)
{
    KdString error;
    WriteOptions writing;
    writing.overwrite = options.overwrite;
    if (writeSelection(*ids.front().database(), ids, options.write, error, writing) == eOk)
        return true;
    std::cerr << "kwselect: " << options.write << ": " << kdToUtf8(error) << '\n';
    return false;
}

} // namespace

int selectEntities(const Module& module, const Options& options)
{
    Filter filter;
    if (!readFilter(module, options, filter))
        return kCannotWork;
    quick_select::Result result{};
    module.run(requestOf(filter, options.exclude), nullptr, result);
    if (!told(options, result.outcome))
        return kCannotWork;
    const std::vector<KdDbObjectId> ids = selection();
    if (ids.empty())
        return kNothingSelected;
    for (const KdDbObjectId id : ids)
        std::cout << handleText(id.handle()) << '\n';
    return options.write.empty() || write(options, ids) ? kSelected : kCannotWork;
}
