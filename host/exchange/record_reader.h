// Reads the groups of one record for the reader of its kind.
#pragma once

#include <optional>

#include <database/entity.h>
#include <geometry/point.h>

#include "drawing_source.h"
#include "numbers.h"

namespace dxf {

/// Walks the groups of a record. What every object or entity may have (extension dictionary,
/// extended data, colour and the other general properties) goes into its record on the way; groups
/// of embedded objects (unless asked for) and previews are left out. The rest is the reader's:
///
///     while (reader.next()) {
///         switch (reader.code()) {
///         case 10: members.center = reader.point(); break;
///
/// A value that is no number reads as what could be made of it, and the drawing's findings say so.
class RecordReader
{
  public:
    /// Reads `range` of `object` into `members`.
    /// @param entity  the same record if it is an entity's, else null
    RecordReader(DrawingSource& source, const KdDbObject& object, SourceRange range,
                 ObjectMembers& members, EntityMembers* entity);
    ~RecordReader();
    RecordReader(const RecordReader&) = delete;
    RecordReader& operator=(const RecordReader&) = delete;

    /// Steps to the next group that is the reader's; false at the end of the record.
    bool next();
    /// Reads the rest for what all objects have.
    void skipRest();
    /// From now on `next` steps to the groups of embedded objects, too.
    void includeEmbeddedObjects() { m_includesEmbedded = true; }
    /// True in the groups of an embedded object, which go on to the end of the record.
    bool isEmbedded() const { return m_isEmbedded; }

    int code() const { return m_group.code; }
    const Group& group() const { return m_group; }
    /// The subclass marker that the group stands under; empty before the first one.
    std::string_view subclass() const { return m_subclass; }
    bool isIn(std::string_view subclass) const { return m_subclass == subclass; }
    /// The record's own name, such as "LINE".
    std::string_view recordName() const { return m_recordName; }
    const KdDbObject& object() const { return m_object; }
    DrawingSource& source() { return m_source; }

    double real();
    double angle(); ///< from degrees
    int integer();
    std::int16_t shortInteger();
    bool flag() { return integer() != 0; }
    /// The number as a count of what follows, 0 where the record is too short for so many. For
    /// making room beforehand: what follows may be more or less.
    /// @param leastBytes  that each takes in the file
    std::size_t statedCount(std::uint32_t leastBytes) const;
    KdString text();
    KdDbHandle handle();
    /// The object of the handle; the null id if there is none.
    KdDbObjectId reference();
    /// The coordinates from here on: at the code, the code + 10 and the code + 20, as far as they
    /// follow.
    KdGePoint3d point();
    KdGePoint2d point2d();
    KdGeVector3d vector() { return coordinates(0.0).asVector(); }
    /// Up to R11: the z of points that have none.
    double elevation() const { return m_elevation; }

    void note(DrawingFinding kind, std::wstring_view detail = {});

  private:
    friend class ExtendedDataReader;

    bool advance();
    void stepBack() { m_steppedBack = true; }
    void noteState(NumberState state);
    KdGePoint3d coordinates(double missingZ);
    bool nextCoordinate(int code, double& value);
    void skipEmbeddedObject();
    void readApplicationGroup();
    void addReactor(KdDbObjectId reactor);
    bool isGeneralPart() const;
    bool takeGeneral();
    bool takeProperty();
    bool takeColor();

    DrawingSource& m_source;
    const KdDbObject& m_object;
    ObjectMembers& m_members;
    EntityMembers* m_entity;
    GroupStream m_groups;
    Group m_group;
    KdDbHandle m_readBefore; ///< one object's members may ask for another's
    std::string_view m_recordName;
    std::string_view m_subclass;
    double m_elevation = 0.0;
    bool m_steppedBack = false;
    bool m_hasTrueColor = false;
    bool m_includesEmbedded = false;
    bool m_isEmbedded = false;
};

/// The part of a record whose groups are free: none of them has the meaning that it has elsewhere.
constexpr std::string_view kFreeSubclass = "AcDbXrecord";

/// The word of a colour by its index; values out of range count as by layer.
std::uint32_t colorWordOfIndex(int index);
/// The word of a true colour 0x00RRGGBB.
std::uint32_t colorWordOfRgb(int rgb);

} // namespace dxf
