/// Reading single system variables.
#pragma once

#include <editor/system_variables.h>

/// The 16-bit integer in the value of a variable; 0 if the variable cannot be read.
inline short shortVariable(const wchar_t* name)
{
    resbuf variable{};
    kdedGetVar(name, &variable);
    return variable.resval.rint;
}
