/// Ties the host's entity classes to the module's providers.
#pragma once

#include <span>

class KdRxClass;
class KdRxObject;

/// One host class with the provider that answers for it.
struct Registration
{
    KdRxClass* (*hostClass)();
    KdRxObject* provider;
};

/// The 98 rows in the order of their attachment. A host class without a row inherits the provider
/// of its nearest ancestor that has one.
std::span<const Registration> registrations();

/// Attaches every provider to its class under the protocol of `KdDbEntityPE`.
void addXs();
/// Takes them off again, `KdDbMline` twice in a row, which does no harm the second time.
void delXs();
