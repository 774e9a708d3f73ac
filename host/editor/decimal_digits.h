#pragma once

#include <optional>
#include <string>

#include <runtime/kd_string.h>

/// More decimals than this are noise in a double of any usual size.
constexpr int kMostDecimalDigits = 16;

/// Bits of DIMZIN that say which zeros of decimals are left out.
constexpr int kLeadingZeros = 4;
constexpr int kTrailingZeros = 8;

/// A value of 0 or more with `precision` decimals. A decimal tie is rounded up, as people do it,
/// even where the nearest double lies a little below the tie.
std::wstring decimalDigits(double magnitude, int precision, int zeroSuppression);

/// True unless `text` is made of zeros and marks alone.
bool hasValue(const std::wstring& text);

/// What a conversion answers: `RTERROR`, with an empty buffer, if there is no text or it does not
/// fit.
int copyOrFail(const std::optional<std::wstring>& text, wchar_t* buffer, unsigned long size);
/// The same; `target` stays as it was on failure.
int assignOrFail(const std::optional<std::wstring>& text, KdString& target);
