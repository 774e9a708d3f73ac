/// Descriptors of the runtime classes that the module brings with it.
#pragma once

#include <runtime/rx_class.h>

/// What registering a class needs to know.
struct ClassDescription
{
    const wchar_t* name;
    const wchar_t* parentName;
    int proxyFlags;
    KdRxObject* (*pseudoConstructor)(); ///< null for an abstract class
};

/// The class in `descriptor`; when that is null, the class registered as `name` (null if there is
/// none), which `descriptor` then remembers.
KdRxClass* findDescriptor(KdRxClass*& descriptor, const wchar_t* name);

/// Registers a class unless `descriptor` already stands for it. Ends the process with the words
/// "Class mismatch" if another class has taken the name of the one in `descriptor`.
void registerDescriptor(KdRxClass*& descriptor, const ClassDescription& description);
