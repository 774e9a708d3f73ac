/// What a drawing's reader found.
#pragma once

#include <QString>

struct ReadReport;
class QWidget;

/// The sentence that counts the findings; empty if there are none.
QString findingsSentence(const ReadReport& report);
/// Lists the findings in a window beside the others.
void showFindings(const QString& file, const ReadReport& report, QWidget* parent);
