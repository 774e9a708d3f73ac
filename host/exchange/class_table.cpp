#include "class_table.h"

#include <algorithm>

#include <entities/all.h>

namespace dxf {
namespace {

constexpr int kPolyline3d = 8;
constexpr int kPolygonMesh = 16;
constexpr int kPolyFaceMesh = 64;
constexpr int kMeshCorner = 64;
constexpr int kDimensionKind = 15;

const KdRxClass* polylineClass(const ClassHints& hints)
{
    if (hints.flags & kPolyFaceMesh)
        return KdDbPolyFaceMesh::desc();
    if (hints.flags & kPolygonMesh)
        return KdDbPolygonMesh::desc();
    return hints.flags & kPolyline3d ? KdDb3dPolyline::desc() : KdDb2dPolyline::desc();
}

const KdRxClass* vertexClass(const ClassHints& hints)
{
    if (hints.parent == KdDbPolyFaceMesh::desc())
        return hints.flags & kMeshCorner ? KdDbPolyFaceMeshVertex::desc() : KdDbFaceRecord::desc();
    if (hints.parent == KdDbPolygonMesh::desc())
        return KdDbPolygonMeshVertex::desc();
    return hints.parent == KdDb3dPolyline::desc() ? KdDb3dPolylineVertex::desc()
                                                  : KdDb2dVertex::desc();
}

const KdRxClass* dimensionClass(const ClassHints& hints)
{
    static const KdRxClass* const kByKind[] = {
        KdDbRotatedDimension::desc(),      KdDbAlignedDimension::desc(),
        KdDb2LineAngularDimension::desc(), KdDbDiametricDimension::desc(),
        KdDbRadialDimension::desc(),       KdDb3PointAngularDimension::desc(),
        KdDbOrdinateDimension::desc(),
    };
    const auto kind = static_cast<std::size_t>(hints.flags & kDimensionKind);
    return kByKind[kind < std::size(kByKind) ? kind : 0];
}

const KdRxClass* insertClass(const ClassHints& hints)
{
    const bool isGrid = hints.flags > 1 || hints.count > 1;
    return isGrid ? KdDbMInsertBlock::desc() : KdDbBlockReference::desc();
}

struct DecisionRow
{
    std::string_view recordName;
    ClassEntry::Decide decide;
    bool hasParts = false;
};

// Records of one name and several classes. Up to R12 there are no subclass markers, then the
// numbers decide.
constexpr DecisionRow kDecisions[] = {
    {"POLYLINE", polylineClass, true},
    {"VERTEX", vertexClass},
    {"DIMENSION", dimensionClass},
    {"INSERT", insertClass, true},
};

struct AliasRow
{
    const char* recordName;
    const wchar_t* className;
};

// Names of old versions and of other writers.
constexpr AliasRow kAliases[] = {
    {"3DLINE", L"AcDbLine"},
    {"MLEADER", L"AcDbMLeader"},
    {"ACDBASSOCDIMDEPENDENCYBODY", L"AcDbAssocDimDependencyBody"},
    {"GEOPOSITIONMARKER", L"AcDbGeoPositionMarker"},
};

std::string narrow(std::wstring_view text)
{
    std::string result;
    for (const wchar_t c : text)
        result.push_back(c < 0x80 ? static_cast<char>(c) : '?');
    return result;
}

} // namespace

const KdRxClass* ClassEntry::ofMarker(std::string_view marker) const
{
    const auto found = std::ranges::find(m_classes, marker, &Candidate::marker);
    return found == m_classes.end() ? nullptr : found->rxClass;
}

const KdRxClass* ClassEntry::decide(const ClassHints& hints) const
{
    if (!isAmbiguous())
        return m_classes.front().rxClass;
    const KdRxClass* decided = m_decide ? m_decide(hints) : nullptr;
    // A grid of block references is often marked as a single one.
    const bool isGrid = decided == KdDbMInsertBlock::desc();
    if (hints.marked && !isGrid)
        return hints.marked;
    return decided ? decided : m_classes.front().rxClass;
}

ClassTable::ClassTable(const KdRxClass* base, const KdRxClass* fallback,
                       std::initializer_list<const KdRxClass*> without)
    : m_base(base), m_without(without), m_unknown(fallback)
{
    m_unknown.m_unknown = true;
    for (const KdRxClass* rxClass : kdrxAllClasses()) {
        if (*rxClass->dxfName())
            add(rxClass, narrow(rxClass->dxfName()));
    }
    for (const AliasRow& row : kAliases) {
        if (const KdRxClass* rxClass = kdrxFindKdRxClass(row.className))
            add(rxClass, row.recordName);
    }
    for (const DecisionRow& row : kDecisions) {
        const auto entry = m_known.find(std::string(row.recordName));
        if (entry == m_known.end())
            continue;
        entry->second.m_decide = row.decide;
        entry->second.m_hasParts = row.hasParts;
    }
}

void ClassTable::add(const KdRxClass* rxClass, std::string dxfName)
{
    const bool isLeftOut = std::ranges::any_of(
        m_without, [=](const KdRxClass* root) { return rxClass->isDerivedFrom(root); });
    if (isLeftOut || !rxClass->factory().construct || !rxClass->isDerivedFrom(m_base))
        return;
    ClassEntry& entry = m_known.try_emplace(std::move(dxfName), rxClass).first->second;
    if (entry.m_classes.front().marker.empty())
        entry.m_classes.clear();
    entry.m_classes.push_back({narrow(rxClass->name()), rxClass});
}

void ClassTable::addForeign(std::span<const ForeignClass> classes)
{
    for (const ForeignClass& foreign : classes) {
        const std::string name = narrow(foreign.dxfName);
        const KdRxClass* rxClass = kdrxFindKdRxClass(foreign.className.kwszPtr());
        if (rxClass && !m_known.contains(name))
            add(rxClass, name);
    }
    m_seen.clear();
    m_recent.clear();
}

const ClassEntry& ClassTable::find(std::string_view recordName)
{
    if (const ClassEntry* const* known = m_recent.find(recordName))
        return **known;
    auto seen = m_seen.find(recordName);
    if (seen == m_seen.end()) {
        constexpr std::size_t kLongestName = 255; // in a damaged file it may be a gigabyte
        const auto known = m_known.find(std::string(recordName.substr(0, kLongestName)));
        const ClassEntry* entry = known == m_known.end() ? &m_unknown : &known->second;
        seen = m_seen.emplace(recordName, entry).first;
    }
    m_recent.note(recordName, seen->second);
    return *seen->second;
}

} // namespace dxf
