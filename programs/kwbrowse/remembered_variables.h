/// System variables that last from one start of the program to the next.
#pragma once

/// Sets them to what was stored; those that were not stored stay.
void restoreVariables();
void storeVariables();

/// The value of a switch; 0 if there is no such variable.
short switchValue(const wchar_t* variable);
void setSwitch(const wchar_t* variable, short value);
