/// Hyperlinks on entities.
#pragma once

#include <vector>

#include <database/object.h>

struct KdDbHyperlink
{
    KdString name;        ///< the address
    KdString description; ///< shown in its place
    KdString subLocation; ///< a named place behind the address
};

class KdDbHyperlinkCollection
{
  public:
    int count() const { return static_cast<int>(m_links.size()); }
    const KdDbHyperlink& item(int index) const { return m_links[static_cast<std::size_t>(index)]; }
    void addTail(KdDbHyperlink link) { m_links.push_back(std::move(link)); }

  private:
    std::vector<KdDbHyperlink> m_links;
};

/// The protocol extension that answers for an entity's hyperlinks; attached to every entity class.
class KW_EXPORT KdDbEntityHyperlinkPE : public KdRxObject
{
    KD_RX_DECLARE(KdDbEntityHyperlinkPE)

    /// Whether the object has a hyperlink. With `ignoreBlockDefinition` the links of the block
    /// behind a reference do not count.
    virtual KdErrorStatus hasHyperlink(const KdDbObject* object, bool& has,
                                       bool ignoreBlockDefinition = true);
    /// The links, as a collection owned by the caller; null if there are none. `ownLinksOnly`
    /// leaves out what an enclosing block reference would add.
    virtual KdErrorStatus getHyperlinkCollection(const KdDbObject* object,
                                                 KdDbHyperlinkCollection*& collection,
                                                 bool ownLinksOnly = true,
                                                 bool ignoreBlockDefinition = true);
};
