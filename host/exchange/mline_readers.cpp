// Multilines and their styles.
#include <entities/mline.h>

#include "member_fields.h"
#include "member_readers.h"

namespace dxf {
namespace {

/// Group 71.
enum Flag : int
{
    kClosed = 2,
    kWithoutStartCaps = 4,
    kWithoutEndCaps = 8,
};

void takeFlags(int flags, MlineMembers& mline)
{
    mline.closed = (flags & kClosed) != 0;
    mline.withoutStartCaps = (flags & kWithoutStartCaps) != 0;
    mline.withoutEndCaps = (flags & kWithoutEndCaps) != 0;
}

/// Gathers the gaps. Behind each vertex stand, for each line of the style, the number of places on
/// the line and these, of which the first is no place but the line's distance from the path; then
/// in the same way those of the fill, which is thought to begin at the vertex.
class CutReader
{
  public:
    explicit CutReader(MlineMembers& mline) : m_mline(mline) {}

    bool take(RecordReader& reader)
    {
        switch (reader.code()) {
        case 41:
            if (m_hasDistance)
                add(m_mline.lineCuts, reader.real());
            m_hasDistance = true;
            return true;
        case 42:
            if (m_mline.fillCuts.empty() || !isHere(m_mline.fillCuts.back()))
                add(m_mline.fillCuts, 0.0);
            add(m_mline.fillCuts, reader.real());
            return true;
        case 74:
            ++m_linesBegun;
            m_hasDistance = false;
            return true;
        default:
            return false;
        }
    }
    void beginVertex() { m_linesBegun = 0; }
    void finish()
    {
        std::erase_if(m_mline.lineCuts, [](const MlineCut& cut) {
            return cut.places.size() == 1 && cut.places.front() == 0.0;
        });
    }

  private:
    std::size_t vertex() const { return m_mline.vertices.size() - 1; }
    std::size_t line() const { return m_linesBegun - 1; }
    bool isHere(const MlineCut& cut) const { return cut.vertex == vertex() && cut.line == line(); }
    void add(std::vector<MlineCut>& cuts, double place)
    {
        if (m_mline.vertices.empty() || m_linesBegun == 0)
            return;
        if (cuts.empty() || !isHere(cuts.back()))
            cuts.push_back({vertex(), line(), {}});
        cuts.back().places.push_back(place);
    }

    MlineMembers& m_mline;
    std::size_t m_linesBegun = 0; ///< at the vertex
    bool m_hasDistance = false;
};

void readMline(RecordReader& reader, MlineMembers& mline)
{
    CutReader cuts(mline);
    KdString styleName;
    while (reader.next()) {
        switch (reader.code()) {
        case 2:
            styleName = reader.text();
            break;
        case 11:
            mline.vertices.push_back(reader.point());
            cuts.beginVertex();
            break;
        case 40:
            mline.scale = reader.real();
            break;
        case 70:
            mline.justification = static_cast<std::int8_t>(reader.integer());
            break;
        case 71:
            takeFlags(reader.integer(), mline);
            break;
        case 210:
            mline.normal = reader.vector();
            break;
        case 340:
            mline.style = reader.reference();
            break;
        default:
            cuts.take(reader);
        }
    }
    cuts.finish();
    if (mline.style.isNull()) { // some writers give the name alone
        const KdDbObjectId styles = KdDbMlineStyle::styleDictionary(reader.source().database);
        mline.style = kddbDictionaryEntry(styles, styleName.kwszPtr());
    }
}

void readMlineStyle(RecordReader& reader, MlineStyleMembers& style)
{
    while (reader.next()) {
        switch (reader.code()) {
        case 2:
            style.name = reader.text();
            break;
        case 3:
            style.description = reader.text();
            break;
        case 6:
            if (!style.linetypes.empty())
                style.linetypes.back() = reader.source().linetype(reader.group());
            break;
        case 49: // begins an element
            style.offsets.push_back(reader.real());
            style.colors.push_back(KdCmColor().color());
            style.linetypes.emplace_back();
            break;
        case 51:
            style.startAngle = reader.angle();
            break;
        case 52:
            style.endAngle = reader.angle();
            break;
        case 62:
            (style.colors.empty() ? style.fillColor : style.colors.back()) =
                colorWordOfIndex(reader.integer());
            break;
        case 70:
            style.flags = reader.integer();
            break;
        case 420:
            (style.colors.empty() ? style.fillColor : style.colors.back()) =
                colorWordOfRgb(reader.integer());
            break;
        default:
            break;
        }
    }
}

constexpr MemberReaderRow kRows[] = {
    memberReader<KdDbMline, MlineMembers, readMline>(),
    memberReader<KdDbMlineStyle, MlineStyleMembers, readMlineStyle>(),
};

} // namespace

std::span<const MemberReaderRow> mlineReaders()
{
    return kRows;
}

} // namespace dxf
