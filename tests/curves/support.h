/// What the tests of the providers of splines and polylines share.
#pragma once

#include <entities/vertex.h>
#include <entities/vertex_polyline.h>

#include <providers/curve_providers.h>

#include "../texts/expected_rows.h"

namespace provider_test {

constexpr const char* kNothing = "5000 nothing";

/// Knows how to give a polyline of the drawing its vertices, and to move the user's frame.
class CurveTest : public ProviderTest
{
  protected:
    template <class Vertex, class Polyline>
    Vertex* addVertex(Polyline* polyline, const KdGePoint3d& position,
                      KdDb::VertexType type = KdDb::kPlainVertex)
    {
        auto* vertex = new Vertex;
        vertex->edit().position = position;
        vertex->edit().type = type;
        EXPECT_EQ(drawing.addObject(vertex, polyline->objectId()), eOk);
        Polyline* opened = nullptr;
        EXPECT_EQ(kddbOpenObject(opened, polyline->objectId(), KdDb::kForWrite), eOk);
        opened->appendPart(vertex->objectId());
        opened->close();
        return vertex;
    }

    KdDb2dVertex* add2dVertex(KdDb2dPolyline* polyline, const KdGePoint3d& position,
                              KdDb::VertexType type = KdDb::kPlainVertex)
    {
        return addVertex<KdDb2dVertex>(polyline, position, type);
    }

    void setWidths(KdDb2dVertex* vertex, double start, double end)
    {
        change(vertex, [=](Vertex2dMembers& members) {
            members.startWidth = start;
            members.endWidth = end;
        });
    }

    /// The user's frame: moved to (10, 20, 30) and turned by a quarter to the left.
    void moveUserFrame()
    {
        set(L"UCSORG", {10, 20, 30});
        set(L"UCSXDIR", {0, 1, 0});
        set(L"UCSYDIR", {-1, 0, 0});
    }

  private:
    void set(const wchar_t* variable, const KdGePoint3d& value)
    {
        const int index = KdDbHeaderVariables::indexOf(variable);
        ASSERT_GE(index, 0);
        ASSERT_TRUE(drawing.header().setValue(index, value));
    }
};

} // namespace provider_test
