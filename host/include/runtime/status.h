/// Status numbers of the platform: one family for the database, one for the editor.
#pragma once

/// Status of a database or runtime operation; 0 is success.
enum KdErrorStatus : int
{
    eOk = 0,
    eInvalidInput = 3,
    eOutOfRange = 23,
    eNotInDatabase = 4,
    eNullObjectPointer = 5,
    eWrongDatabase = 6,
    eNotThatKindOfClass = 7,
    eKeyNotFound = 8,
    eDuplicateKey = 9,
    eInvalidKey = 10,
    eNullObjectId = 11,
    eWasErased = 12,
    eNotOpenForRead = 13,
    eNotOpenForWrite = 14,
    eWasOpenForWrite = 15,
    eWasOpenForRead = 16,
    eNotApplicable = 17,
    eFileAccessError = 18,
    eBadDrawing = 19,
    eUserBreak = 20,
};

/// Status of an editor operation.
constexpr int RTNORM = 5100;   ///< success
constexpr int RTERROR = -5001; ///< bad input, or nothing there
constexpr int RTCAN = -5002;   ///< cancelled by the user
constexpr int RTREJ = -5003;   ///< value out of range, or refused
