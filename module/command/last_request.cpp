#include <command/last_request.h>

#include <utility>

namespace {

std::optional<RememberedRequest> lastRequest;

std::wstring copyOf(const wchar_t* text)
{
    return text ? text : L"";
}

} // namespace

RememberedRequest RememberedRequest::of(const quick_select::Request& request)
{
    RememberedRequest copy;
    copy.typeName = copyOf(request.typeName);
    copy.className = copyOf(request.className);
    copy.propertyKey = copyOf(request.propertyKey);
    copy.operatorText = copyOf(request.operatorText);
    copy.valueText = copyOf(request.valueText);
    copy.axis = request.axis;
    copy.kind = request.kind;
    copy.exclude = request.exclude;
    copy.append = request.append;
    copy.fromSelection = request.fromSelection;
    if (request.tolerance)
        copy.tolerance = *request.tolerance;
    return copy;
}

void rememberRequest(std::optional<RememberedRequest> request)
{
    lastRequest = std::move(request);
}

void visitLastRequest(quick_select::RequestVisitor visitor, void* context)
{
    if (!lastRequest)
        return visitor(context, nullptr);
    const RememberedRequest& kept = *lastRequest;
    const quick_select::PastRequest past{
        {kept.typeName.c_str(), kept.className.c_str(), kept.propertyKey.c_str(), kept.axis,
         kept.kind, kept.operatorText.c_str(), kept.valueText.c_str(), kept.exclude, kept.append,
         kept.fromSelection, kept.tolerance ? &*kept.tolerance : nullptr},
        kept.overPicked};
    visitor(context, &past);
}
