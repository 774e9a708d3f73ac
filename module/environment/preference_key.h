/// Where the settings of the user's profile lie.
#pragma once

#include <string>

class PreferenceKey
{
  public:
    /// The path of the current profile; empty until it is first asked for.
    static std::wstring m_currentProfilePath;
};
