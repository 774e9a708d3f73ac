#include <database/color.h>

KdErrorStatus KdCmColor::setColorMethod(int method)
{
    switch (method) {
    case kByLayer:
    case kByBlock:
    case kByColor:
    case kNone:
        m_word = static_cast<std::uint32_t>(method) << 24;
        return eOk;
    case kByACI:
        m_word = static_cast<std::uint32_t>(method) << 24 | 7;
        return eOk;
    default:
        return eInvalidInput;
    }
}

int KdCmColor::colorIndex() const
{
    switch (colorMethod()) {
    case kByLayer:
        return kIndexByLayer;
    case kByACI:
        return static_cast<int>(m_word & 0xFF);
    default:
        return kIndexByBlock;
    }
}

KdErrorStatus KdCmColor::setColorIndex(int index)
{
    if (index < kIndexByBlock || index > kIndexByLayer)
        return eInvalidInput;
    if (index == kIndexByLayer)
        return setColorMethod(kByLayer);
    if (index == kIndexByBlock)
        return setColorMethod(kByBlock);
    m_word = static_cast<std::uint32_t>(kByACI) << 24 | static_cast<std::uint32_t>(index);
    return eOk;
}

void KdCmColor::setRGB(std::uint8_t red, std::uint8_t green, std::uint8_t blue)
{
    m_word = static_cast<std::uint32_t>(kByColor) << 24 | static_cast<std::uint32_t>(red) << 16 |
             static_cast<std::uint32_t>(green) << 8 | blue;
}

void KdCmColor::setNames(const KdString& colorName, const KdString& bookName)
{
    m_colorName = colorName;
    m_bookName = bookName;
}

void KdCmColor::setNames(const KdString& fullName)
{
    const int separator = fullName.findOneOf(L"$");
    const auto length = static_cast<std::size_t>(separator);
    if (separator < 0)
        setNames(fullName, {});
    else
        setNames(fullName.substr(length + 1), fullName.substr(0, length));
}

KdCmTransparency KdCmTransparency::fromWord(std::uint32_t word)
{
    constexpr std::uint32_t kWordByBlock = 0x01000000;
    constexpr std::uint32_t kWordAlpha = 0x02000000;
    KdCmTransparency transparency;
    if (word == kWordByBlock)
        transparency.setMethod(kByBlock);
    else if ((word & 0xFFFFFF00) == kWordAlpha)
        transparency.setAlpha(static_cast<std::uint8_t>(word));
    else if (word != 0)
        transparency.setMethod(kErrorValue);
    return transparency;
}
