// The data of solid modelers inside drawings.
#pragma once

#include <string>
#include <unordered_map>

#include <database/object.h>

namespace dxf {

struct DrawingSource;

/// Finds the records of the section that holds binary bodies, by the handles of their entities. The
/// section is looked through once, when the first body is asked for.
class BodyDataIndex
{
  public:
    /// Where the section's first record stands.
    void setSection(std::uint64_t begin) { m_begin = begin; }
    /// The body of that entity; empty if there is none.
    std::string find(DrawingSource& source, KdDbHandle entity);

  private:
    void build(DrawingSource& source);

    std::uint64_t m_begin = 0; ///< 0: there is no section, or it is indexed
    std::unordered_map<KdDbHandle, std::uint64_t> m_records; ///< where their records begin
};

/// The body that stands as text in an entity's own record, made readable; empty if there is none.
std::string textOfBody(DrawingSource& source, SourceRange range);

} // namespace dxf
