/// The provider of viewports.
#pragma once

#include <array>

#include <entities/viewport.h>
#include <plugin/entity_pe.h>

#include <providers/table_provider.h>

class KdDbViewport_Extension
    : public TableProvider<KdDbViewport_Extension, KdDbEntity_Extension, KdDbViewport>
{
  public:
    /// Knows the names of the standard scales, and walks through them.
    class StandardScaleFiller
    {
      public:
        StandardScaleFiller();

        /// Looks a line up: with mode 0 by its type, whose name `name` receives; with mode 1 by its
        /// exact name, whose type `type` receives. Without such a line, and in any other mode,
        /// nothing changes.
        void FillScaleByInternalTable(int mode, KdDbViewport::StandardScaleType& type,
                                      KdString& name) const;
        void findScaleNameByType(KdDbViewport::StandardScaleType type, KdString& name) const;
        void findScaleTypeByName(KdDbViewport::StandardScaleType& type, KdString name) const;

        /// Begins the walk anew.
        void resetListName() { m_position = 0; }
        /// Gives the next name and returns 1; behind the last one 0, `name` untouched.
        int getScaleName(KdString& name);

        /// Gives the name of the viewport's scale, and behind it, whoever asks, all names. Returns
        /// 1, or 0 for a null viewport.
        int fillSTypeGetProps(const KdDbViewport* viewport, ResBuf*& result);
        /// The reverse: sets the scale whose name `value` holds. A name that no scale has changes
        /// nothing. Returns as above.
        int sTypeSetProps(KdDbViewport* viewport, ResBuf*& value) const;

      private:
        struct Line
        {
            KdDbViewport::StandardScaleType type;
            KdString name;
        };

        std::array<Line, 33> m_lines;
        std::size_t m_position = 0;
    };

    static std::span<const PropertyRow> rows();
};
