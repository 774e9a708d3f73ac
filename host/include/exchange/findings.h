/// What a drawing reader may find wrong with a file and still read on.
#pragma once

#include <cstdint>

#include <database/object_id.h>
#include <runtime/export.h>
#include <runtime/kd_string.h>

/// The kinds of finding. The numbers stay as they are once published.
enum class DrawingFinding : int
{
    BadGroupCode = 1,
    BadNumber = 2,
    DecimalComma = 3,
    BadHandle = 4,
    TextTooLong = 5,
    RecordTooLong = 6,
    NoEndOfFile = 7,
    SectionNotClosed = 8,
    RecordOutsideSection = 9,
    UnknownCodePage = 10,
    CodePageIsWrong = 11,
    HandleIsZero = 12,
    HandleIsDoubled = 13,
    DoubledName = 14,
    MissingName = 15,
    UndefinedLayer = 16,
    UndefinedLinetype = 17,
    UndefinedStyle = 18,
    UndefinedBlock = 19,
    UnknownEntity = 20,
    PartWithoutParent = 21,
    TableNotClosed = 22,
    BlockNotClosed = 23,
    BadHeaderVariable = 24,
    HandleIsMissing = 25,
    OwnerIsMissing = 26,
    BlockHoldsItself = 27,
    UnknownVersion = 28,
    UnknownSection = 29,
    UnknownTable = 30,
    RecordOutsideTable = 31,
};

/// The sentence that explains a kind of finding; empty for a number that is none.
KW_EXPORT const wchar_t* drawingFindingSentence(DrawingFinding kind);
/// True if something that stands in the file was not read.
KW_EXPORT bool drawingFindingLosesContent(DrawingFinding kind);

/// One thing found in a file.
struct ReadFinding
{
    int number = 0;         ///< a `DrawingFinding`
    std::uint64_t line = 0; ///< from 1; in a binary file the byte offset
    KdDbHandle handle = 0;  ///< of the object concerned; 0 where there is none or it is not known
    KdString sentence;      ///< what is wrong and what was done about it, with the name concerned
};
