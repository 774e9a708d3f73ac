/// What the tests of leaders share.
#pragma once

#include <dimensions/leader_providers.h>

#include "../texts/expected_rows.h"

namespace provider_test {

inline const std::vector<std::string> kLineweights =
    texts({"0.00 mm", "0.05 mm", "0.09 mm", "0.13 mm", "0.15 mm", "0.18 mm", "0.20 mm",
           "0.25 mm", "0.30 mm", "0.35 mm", "0.40 mm", "0.50 mm", "0.53 mm", "0.60 mm",
           "0.70 mm", "0.80 mm", "0.90 mm", "1.00 mm", "1.06 mm", "1.20 mm", "1.40 mm",
           "1.58 mm", "2.0 mm",  "2.11 mm", "ByLayer", "ByBlock", "Default"});

} // namespace provider_test
