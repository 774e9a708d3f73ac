/// Holds a chain of value records for the length of a scope.
#pragma once

#include <values/res_buf.h>

class ValueChain
{
  public:
    /// One empty record, ready to be handed to a provider.
    ValueChain() : m_head(ResBuf::newRb(ResBuf::kNone)) {}
    ~ValueChain() { ResBuf::relRb(m_head); }
    ValueChain(const ValueChain&) = delete;
    ValueChain& operator=(const ValueChain&) = delete;

    ResBuf*& head() { return m_head; }

  private:
    ResBuf* m_head;
};
