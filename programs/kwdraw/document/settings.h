/// What lasts from one start of the program to the next, in the user's settings file.
#pragma once

#include <QByteArray>
#include <QString>

/// A text of this program's own; empty if there is none under that name.
QString storedText(const wchar_t* name);
void storeText(const wchar_t* name, const QString& text);
/// The same with any bytes.
QByteArray storedBytes(const wchar_t* name);
void storeBytes(const wchar_t* name, const QByteArray& bytes);

/// Sets the system variables that last to what was stored; those that were not stored stay.
void restoreVariables();
void storeVariables();

/// The value of a system variable that is a switch; 0 if there is no such variable.
short switchValue(const wchar_t* variable);
void setSwitch(const wchar_t* variable, short value);
