// Fonts need the program around them.
#include <QGuiApplication>

#include <support/application.h>

namespace {

[[maybe_unused]] const auto* const kApplication =
    testing::AddGlobalTestEnvironment(new ApplicationAround<QGuiApplication>);

} // namespace
