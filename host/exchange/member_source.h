// Answers for the members of objects that are only indexed so far.
#pragma once

#include <memory>

#include "drawing_source.h"

namespace dxf {

/// True if the members of such objects may be read in several threads at the same time, each with
/// a source of its own.
bool mayBeReadBeside(const KdDbObject& object);

/// Reads the record in `range` into `members`, the record of `object`.
void readMembers(DrawingSource& source, const KdDbObject& object, SourceRange range,
                 ObjectMembers& members);

class MemberSource : public KdDbMemberSource
{
  public:
    explicit MemberSource(std::unique_ptr<DrawingSource> source) : m_source(std::move(source)) {}

    void readMembers(const KdDbObject& object, ObjectMembers& members) override
    {
        dxf::readMembers(*m_source, object, object.source(), members);
    }

    std::string_view bytes(SourceRange range) const override;
    bool isIntact() const override { return m_source->bytes.isIntact(); }
    const DrawingSource& drawing() const { return *m_source; }

  private:
    std::unique_ptr<DrawingSource> m_source;
};

} // namespace dxf
