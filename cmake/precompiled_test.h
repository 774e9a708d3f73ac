// What every test includes; compiled once for each test program.
#pragma once

#include "precompiled.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
