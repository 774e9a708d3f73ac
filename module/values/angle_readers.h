#pragma once

#include <string>

/// Readers of one notation each; `angle` is in radians and untouched on failure, which is false.
bool readDegrees(std::wstring text, double& angle);
bool readDegreesMinutesSeconds(std::wstring text, double& angle);
bool readGrads(std::wstring text, double& angle);
bool readRadians(std::wstring text, double& angle);
bool readSurveyor(std::wstring text, double& angle);
