/// The text form of settings; see `SettingsFile`.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include <platform/settings_file.h>

using SettingsLine = std::pair<std::wstring, SettingsFile::Value>;

/// The first line of a file, with its end.
std::wstring settingsHead();

/// False if the first line tells a form that these functions do not read.
bool isFormKnown(std::wstring_view text);

enum class SettingsLineKind
{
    Value,
    Nothing, ///< blank, or a remark
    Fault,
};

/// Reads one line without its end. `value` is untouched unless the line holds one.
SettingsLineKind parseSettingsLine(std::wstring_view line, SettingsLine& value);

/// Appends the line of a value, with its end.
void appendSettingsLine(std::wstring& text, std::wstring_view name,
                        const SettingsFile::Value& value);
