#include <kwdraw/scene/look_table.h>

#include <algorithm>
#include <cmath>

#include <database/color_palette.h>
#include <database/database.h>

namespace {

constexpr QRgb kAlphaMask = 0xFF000000;
constexpr int kForegroundIndex = 7;
/// In hundredths of a millimetre; drawings do not hold it.
constexpr std::int16_t kDefaultLineweight = 25;

void setRgb(SceneLook& look, std::uint32_t rgb, bool isForeground)
{
    look.color = (look.color & kAlphaMask) | (rgb & ~kAlphaMask);
    look.isForeground = isForeground;
}

void setAlpha(SceneLook& look, unsigned alpha)
{
    look.color = (look.color & ~kAlphaMask) | alpha << 24;
}

/// A colour that is one by itself.
void setPlainColor(SceneLook& look, const KdCmColor& color)
{
    const int index = color.colorMethod() == KdCmColor::kByACI ? color.colorIndex() : 0;
    if (color.colorMethod() == KdCmColor::kByColor)
        setRgb(look, color.color(), false);
    else if (index > 0)
        setRgb(look, kdcmPaletteRgb(index), index == kForegroundIndex);
    else
        setRgb(look, kdcmPaletteRgb(kForegroundIndex), true);
}

/// True if a pattern repeats after a stretch that one can see, without numbers that are none.
bool isPattern(const SceneLinetype& linetype)
{
    const auto isGap = [](double dash) { return dash < 0.0; };
    return std::isfinite(linetype.length) && linetype.length > 0.0 &&
           std::ranges::any_of(linetype.dashes, isGap);
}

QString textOf(const KdString& text)
{
    return QString::fromWCharArray(text.kwszPtr(), static_cast<int>(text.view().size()));
}

} // namespace

LookTable::LookTable(const KdDbDatabase& database, Scene& scene)
    : m_scene(scene), m_linetypeScale(database.header().real(L"LTSCALE"))
{
    addLinetypes(database);
    addLayers(database);
}

void LookTable::addLinetypes(const KdDbDatabase& database)
{
    const auto& table = database.table<KdDbLinetypeTable>();
    table.getIdAt(L"ByBlock", m_linetypeByBlock);
    table.getIdAt(L"ByLayer", m_linetypeByLayer);
    for (const KdDbObjectId id : table.recordIds()) {
        const OpenForRead<KdDbLinetypeTableRecord> record(id);
        if (!record)
            continue;
        SceneLinetype linetype{record->dashes(), 0.0};
        for (const double dash : linetype.dashes)
            linetype.length += std::abs(dash);
        if (!isPattern(linetype))
            continue;
        m_linetypes[id] = static_cast<std::int32_t>(m_scene.linetypes.size());
        m_scene.linetypes.push_back(std::move(linetype));
    }
}

void LookTable::addLayers(const KdDbDatabase& database)
{
    const auto& table = database.table<KdDbLayerTable>();
    for (const KdDbObjectId id : table.recordIds()) {
        const OpenForRead<KdDbLayerTableRecord> record(id);
        if (record)
            addLayer(*record);
    }
    if (m_scene.layers.empty()) { // a database that was made without any
        m_scene.layers.push_back({{}, QStringLiteral("0"), 0xFFFFFFFF, true, true, false, false});
        m_layerLooks.emplace_back().isForeground = true;
    }
    KdDbObjectId zero;
    if (table.getIdAt(L"0", zero) == eOk)
        m_layerZero = layerOf(zero);
}

void LookTable::addLayer(const KdDbLayerTableRecord& layer)
{
    SceneLook look;
    setPlainColor(look, layer.color());
    const KdCmTransparency transparency = layer.transparency();
    if (transparency.method() == KdCmTransparency::kByAlpha)
        setAlpha(look, transparency.alpha());
    look.lineweight = layer.lineWeight() >= 0 ? static_cast<std::int16_t>(layer.lineWeight())
                                              : kDefaultLineweight;
    const auto linetype = m_linetypes.find(layer.linetypeObjectId());
    look.linetype = linetype == m_linetypes.end() ? -1 : linetype->second;

    m_layers[layer.objectId()] = static_cast<std::uint32_t>(m_layerLooks.size());
    m_layerLooks.push_back(look);
    m_scene.layers.push_back({layer.objectId(), textOf(layer.name()), look.color | kAlphaMask,
                              look.isForeground, !layer.isOff(), layer.isFrozen(),
                              layer.isLocked()});
}

std::uint32_t LookTable::layerOf(KdDbObjectId layer) const
{
    const auto known = m_layers.find(layer);
    return known == m_layers.end() ? m_layerZero : known->second;
}

SceneLook LookTable::lookOf(const KdDbEntity& entity, std::uint32_t layer,
                            const SceneLook& byBlock) const
{
    SceneLook look;
    const KdCmTransparency transparency = entity.transparency();
    switch (transparency.method()) {
    case KdCmTransparency::kByAlpha:
        setAlpha(look, transparency.alpha());
        break;
    case KdCmTransparency::kByBlock:
        setAlpha(look, static_cast<unsigned>(qAlpha(byBlock.color)));
        break;
    default:
        setAlpha(look, static_cast<unsigned>(qAlpha(m_layerLooks[layer].color)));
    }
    setColor(look, entity.color(), layer, byBlock);
    setLineweight(look, entity.lineWeight(), layer, byBlock);
    look.linetypeScale = entity.linetypeScale() * m_linetypeScale;
    setLinetype(look, entity.linetypeId(), layer, byBlock);
    return look;
}

void LookTable::setColor(SceneLook& look, const KdCmColor& color, std::uint32_t layer,
                         const SceneLook& byBlock) const
{
    const bool isByLayer = color.colorMethod() == KdCmColor::kByLayer;
    if (!isByLayer && color.colorMethod() != KdCmColor::kByBlock)
        return setPlainColor(look, color);
    const SceneLook& from = isByLayer ? m_layerLooks[layer] : byBlock;
    setRgb(look, from.color, from.isForeground);
}

void LookTable::setLineweight(SceneLook& look, int lineweight, std::uint32_t layer,
                              const SceneLook& byBlock) const
{
    constexpr int kByLayer = -1;
    constexpr int kByBlock = -2;
    constexpr int kThickest = 211;
    if (lineweight == kByLayer)
        look.lineweight = m_layerLooks[layer].lineweight;
    else if (lineweight == kByBlock)
        look.lineweight = byBlock.lineweight;
    else
        look.lineweight = lineweight >= 0
                              ? static_cast<std::int16_t>(std::min(lineweight, kThickest))
                              : kDefaultLineweight;
}

void LookTable::setLinetype(SceneLook& look, KdDbObjectId linetype, std::uint32_t layer,
                            const SceneLook& byBlock) const
{
    const auto named = m_linetypes.find(linetype);
    if (named != m_linetypes.end())
        look.linetype = named->second;
    else if (linetype.isNull() || linetype == m_linetypeByLayer)
        look.linetype = m_layerLooks[layer].linetype;
    else
        look.linetype = linetype == m_linetypeByBlock ? byBlock.linetype : -1;
    if (look.linetype < 0 || !(look.linetypeScale > 0.0)) // so that looks without breaks are equal
        look.linetypeScale = 1.0;
}

const SceneLinetype* LookTable::dashesOf(const SceneLook& look) const
{
    return look.linetype >= 0 ? &m_scene.linetypes[static_cast<std::size_t>(look.linetype)]
                              : nullptr;
}
