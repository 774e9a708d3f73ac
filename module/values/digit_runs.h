#pragma once

/// The unsigned number at a cursor: a run of digits, a dot, a run of digits; each may be missing.
struct DigitRuns
{
    double whole = 0.0;
    double decimals = 0.0; ///< already scaled, below 1
    int wholeDigits = 0;
    int decimalDigits = 0;
    bool hasDot = false;

    double value() const { return whole + decimals; }
    bool hasDigits() const { return wholeDigits > 0 || decimalDigits > 0; }
};

/// Reads the number and moves the cursor behind it.
DigitRuns readDigitRuns(wchar_t** cursor);
