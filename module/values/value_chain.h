/// Holds a chain of value records for the length of a scope.
#pragma once

#include <plugin/res_buf.h>

class ValueChain
{
  public:
    /// One empty record, ready to be handed to a provider.
    ValueChain() : m_head(ResBuf::newRb(ResBuf::kNone)) {}
    ~ValueChain() { ResBuf::relRb(m_head); }
    ValueChain(const ValueChain&) = delete;
    ValueChain& operator=(const ValueChain&) = delete;

    ResBuf*& head() { return m_head; }
    /// Leaves one empty record again, as at the start.
    void reset()
    {
        if (!m_head) {
            m_head = ResBuf::newRb(ResBuf::kNone);
            return;
        }
        freeFollowers();
        m_head->setRestype(ResBuf::kNone);
    }
    /// Leaves one record with the neutral value of the kind it has, so that a value of the same
    /// kind finds its storage.
    void clear()
    {
        if (!m_head)
            return reset();
        freeFollowers();
        m_head->clearValue();
    }

  private:
    void freeFollowers()
    {
        if (!m_head->next())
            return;
        ResBuf* followers = m_head->next();
        m_head->setNext(nullptr);
        ResBuf::relRb(followers);
    }

    ResBuf* m_head;
};
