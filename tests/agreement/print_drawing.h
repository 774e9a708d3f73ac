/// What the programs share that print what our reader makes of a drawing.
#pragma once

#include <string>

#include <database/database.h>

/// Reads the drawing that the only argument names, and has it printed.
/// @return  the status with which the program ends
int printDrawing(int argc, char** argv, void (*print)(const KdDbDatabase& drawing));

/// As ASCII without blanks, with all other characters escaped, so that a word is a word whatever it
/// holds; "-", which is escaped elsewhere, for an empty text.
std::string printable(const KdString& text);

/// The name of a layer, a style or what else has one; empty for everything else.
KdString recordName(KdDbObjectId id);
