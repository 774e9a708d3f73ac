/// Sentences of the readers, writers and filters, which say them in English.
#pragma once

#include <QString>

#include <exchange/findings.h>

/// The sentence in the user's language; as it is if it is not known. Lines that follow it, such as
/// a marked place, stay.
QString inUserLanguage(const QString& sentence);

/// What was found in a file, in the user's language, with the name concerned.
QString sentenceOf(const ReadFinding& finding);
