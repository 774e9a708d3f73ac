/// What the user asked for: the record that passes from the dialog to the run.
#pragma once

#include <plugin/res_buf.h>
#include <runtime/std_str.h>

#include <values/property_parameters.h>

/// Starts as: the entire drawing, Include, no Append, all object types.
struct DialogParameters
{
    DialogParameters();

    ResBuf* filter = nullptr;        ///< head of the filter chain, freed by whoever made it
    bool include = true;             ///< the matches themselves, not their complement
    bool append = false;             ///< add to the current selection
    bool entireDrawing = true;       ///< all of the current space, not a selection
    CStdStr<wchar_t> objectTypeName; ///< display name of the type, or the text for all types
    int selectionSource = -1; ///< -1: the starting selection; 0: entities picked in the dialog
    CStdStr<wchar_t> objectClassName; ///< runtime class of the type
    PropertyParameters propertyParameters;
};
