/// Ties the host's entity classes to the module's providers.
#pragma once

#include <span>

#include <providers/property_row.h>

class KdDbEntityPE;
class KdRxClass;

/// One host class with the provider that answers for it.
struct Registration
{
    KdRxClass* (*hostClass)();
    KdDbEntityPE* provider;
    LastingRow (*lastingRow)(KdDbEntityPE& provider, const KdRxClass& rxClass, const KdString& key);
};

/// The 98 rows in the order of their attachment. A host class without a row inherits the provider
/// of its nearest ancestor that has one.
std::span<const Registration> registrations();

/// The row by which a provider answers a key for each entity of a class; nothing for a provider
/// that is none of these, and where only asking it can tell.
LastingRow lastingRow(KdDbEntityPE& provider, const KdRxClass& rxClass, const KdString& key);

/// Attaches every provider to its class under the protocol of `KdDbEntityPE`.
void addXs();
/// Takes them off again, `KdDbMline` twice in a row, which does no harm the second time.
void delXs();
