/// A home of its own for each test.
#pragma once

#include <gtest/gtest.h>

#include <platform/environment.h>

#include "support.h"

namespace environment_test {

class HomeTest : public testing::Test
{
  protected:
    std::filesystem::path settings() const { return home / "config/kwqselect/registry.conf"; }

    Folder home;
    EnvironmentVariable homeVariable{"HOME", home.path().c_str()};
    EnvironmentVariable config{"XDG_CONFIG_HOME", (home / "config").c_str()};
    EnvironmentVariable data{"XDG_DATA_HOME", (home / "data").c_str()};
};

} // namespace environment_test
