/// Values of properties as the dialog shows them.
#pragma once

#include <string>
#include <vector>

#include <plugin/res_buf.h>

bool isPointKind(int kind);

/// The value of one record: reals and angles in the units of the drawing, coordinates with commas.
/// Integers and names only stand in lists, so `shownAlone` leaves them out.
std::wstring valueText(const ResBuf& record, bool shownAlone);

/// The values that stand behind the head of a chain and are of its kind. Texts that are empty, and
/// points that can't be shown, are left out.
std::vector<std::wstring> choicesBehind(const ResBuf& head);

/// The coordinates of a point of either kind, two or three.
std::vector<double> coordinatesOf(const ResBuf& point);

/// A length in the units of the drawing.
std::wstring lengthText(double value);
