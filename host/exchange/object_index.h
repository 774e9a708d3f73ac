// Indexes the OBJECTS section.
#pragma once

#include <vector>

#include "class_table.h"
#include "object_maker.h"
#include "record_cursor.h"

namespace dxf {

class ObjectIndex
{
  public:
    ObjectIndex(DrawingSource& source, ObjectMaker& maker);

    void addForeignClasses() { m_classes.addForeign(m_source.classes); }
    /// Makes all objects. The cursor stands at the first record and is left at the section's end.
    void read(RecordCursor& cursor);
    /// Gives the objects their owners, and blocks their layouts; called when all handles are known.
    void tie();

  private:
    struct Pending
    {
        KdDbObject* object;
        KdDbHandle owner;
    };

    void readObject(RecordCursor& cursor);
    void tieLayout(const KdDbLayout& layout);
    void chooseActiveSheet();

    DrawingSource& m_source;
    ObjectMaker& m_maker;
    ClassTable m_classes;
    std::vector<Pending> m_pending;
    std::vector<const KdDbLayout*> m_layouts;
    bool m_hasRoot = false;
};

} // namespace dxf
