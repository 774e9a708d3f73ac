/// Walking a list of ids.
#pragma once

#include <cstddef>
#include <vector>

#include <database/object_id.h>

/// A place in a list of ids, which moves in both directions. The list may grow meanwhile, but must
/// not lose anything. Behind either end `done()` is true and nothing moves any more.
class KW_EXPORT KdDbIdIterator
{
  public:
    void start(bool atBeginning = true, bool skipErased = true);
    bool done() const { return m_index >= m_ids.size(); }
    void step(bool forward = true, bool skipErased = true);

  protected:
    KdDbIdIterator(const std::vector<KdDbObjectId>& ids, bool atBeginning, bool skipErased);
    /// The id at the place; `eOutOfRange` behind the ends, `id` untouched.
    KdErrorStatus currentId(KdDbObjectId& id) const;

  private:
    void move(bool forward) { forward ? ++m_index : --m_index; }
    void skipErasedObjects(bool forward);

    const std::vector<KdDbObjectId>& m_ids;
    std::size_t m_index = 0;
};
