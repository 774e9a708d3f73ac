/// A drawing with text styles, and entities that say they are annotative.
#pragma once

#include <entities/all.h>

#include <providers/text_providers.h>

#include "expected_rows.h"

namespace provider_test {

inline const std::vector<std::string> kStyles = texts({"Standard", "ROMAN"});
inline const std::vector<std::string> kJustifications =
    texts({"Left", "Center", "Right", "Aligned", "Middle", "Fit", "Top left", "Top center",
           "Top right", "Middle left", "Middle center", "Middle right", "Bottom left",
           "Bottom center", "Bottom right"});

/// Extended data of an application, as one that makes its object annotative or not.
inline ResbufChain annotation(bool isAnnotative)
{
    const auto integer = [](short value) {
        resbuf* record = kdutNewRb(1070);
        record->resval.rint = value;
        return record;
    };
    resbuf* application = kdutNewRb(1001);
    application->resval.rstring = kdutNewString(L"AcadAnnotative");
    application->rbnext = integer(1);
    application->rbnext->rbnext = integer(isAnnotative ? 1 : 0);
    return ResbufChain(application);
}

class TextProviders : public ProviderTest
{
  protected:
    TextProviders() : roman(drawing.addRecord<KdDbTextStyleTable>(L"ROMAN")->objectId()) {}

    KdDbObjectId roman;
};

} // namespace provider_test
