/// What the last run asked for, kept so that it can be told and run again.
#pragma once

#include <optional>
#include <string>

#include <plugin/quick_select.h>

/// A request with its texts.
struct RememberedRequest
{
    static RememberedRequest of(const quick_select::Request& request);

    std::wstring typeName; ///< empty for all types
    std::wstring className;
    std::wstring propertyKey;
    std::wstring operatorText;
    std::wstring valueText;
    int axis = 0;
    int kind = 0;
    bool exclude = false;
    bool append = false;
    bool fromSelection = false;
    bool overPicked = false; ///< over what was picked in the dialog
    std::optional<double> tolerance;
};

/// Remembers the request of a run that has come to its end. None: there is nothing to tell of it,
/// nor of the runs before. Kept from one run to the next, like the settings of the dialog.
void rememberRequest(std::optional<RememberedRequest> request);
void visitLastRequest(quick_select::RequestVisitor visitor, void* context);
