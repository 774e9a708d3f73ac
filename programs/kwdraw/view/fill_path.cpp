#include "fill_path.h"

#include "clipping.h"

void FillPath::moveTo(QPointF point)
{
    closeOutline();
    m_outline.push_back(point);
}

const QPainterPath& FillPath::finished()
{
    closeOutline();
    return m_path;
}

void FillPath::closeOutline()
{
    constexpr std::size_t kLeast = 3;
    if (m_outline.size() >= kLeast)
        clipPolygon(m_outline, m_box);
    if (m_outline.size() >= kLeast) {
        m_path.moveTo(m_outline.front());
        for (std::size_t i = 1; i < m_outline.size(); ++i)
            m_path.lineTo(m_outline[i]);
        m_path.closeSubpath();
    }
    m_outline.clear();
}
