/// The mark behind degrees.
#pragma once

/// The degree sign, or "d" once "USEDEGREESYM" has been found to be 0: that lasts for the life of
/// the process. The text stays valid and its character may change at a later call. The two
/// functions remember on their own.
const wchar_t* GetDegreesSymbol();
const wchar_t* KdadGetDegreesSymbol();
