/// Colours and transparencies of entities and layers.
#pragma once

#include <cstdint>

#include <runtime/kd_string.h>
#include <runtime/status.h>

/// A colour as one 32-bit word: the method in the top byte, then an index or red, green and blue.
class KW_EXPORT KdCmColor
{
  public:
    enum Method : int
    {
        kByLayer = 0xC0,
        kByBlock = 0xC1,
        kByColor = 0xC2, ///< red, green, blue
        kByACI = 0xC3,   ///< index 1 to 255 of the fixed palette
        kNone = 0xC8,
    };
    static constexpr int kIndexByBlock = 0;
    static constexpr int kIndexByLayer = 256;

    /// By layer.
    KdCmColor() = default;
    explicit KdCmColor(std::uint32_t word) : m_word(word) {}
    virtual ~KdCmColor() = default;
    KdCmColor(const KdCmColor&) = default;
    KdCmColor& operator=(const KdCmColor&) = default;

    /// The word. Equal colours give the same one, different colours different ones.
    virtual std::uint32_t color() const { return m_word; }

    Method colorMethod() const { return static_cast<Method>(m_word >> 24); }
    /// Changes the method and drops the value, which becomes index 7 for `kByACI`, else 0.
    /// `eInvalidInput` for a number that is no method.
    KdErrorStatus setColorMethod(int method);
    /// 1 to 255, `kIndexByBlock` or `kIndexByLayer`; 0 for a colour without an index.
    int colorIndex() const;
    /// Takes an index as `colorIndex` gives it; `eInvalidInput` for others.
    KdErrorStatus setColorIndex(int index);

    std::uint8_t red() const { return static_cast<std::uint8_t>(m_word >> 16); }
    std::uint8_t green() const { return static_cast<std::uint8_t>(m_word >> 8); }
    std::uint8_t blue() const { return static_cast<std::uint8_t>(m_word); }
    void setRGB(std::uint8_t red, std::uint8_t green, std::uint8_t blue);

    /// Names of the colour and of its colour book; they say nothing about equality.
    const KdString& colorName() const { return m_colorName; }
    const KdString& bookName() const { return m_bookName; }
    void setNames(const KdString& colorName, const KdString& bookName);
    /// Takes both as drawings have them: "BOOK$COLOR", or a colour's name alone.
    void setNames(const KdString& fullName);

    bool operator==(const KdCmColor& other) const { return color() == other.color(); }

  private:
    std::uint32_t m_word = 0xC0000000;
    KdString m_colorName;
    KdString m_bookName;
};

/// How much shines through an entity.
class KW_EXPORT KdCmTransparency
{
  public:
    enum Method : int
    {
        kByLayer = 0,
        kByBlock = 1,
        kByAlpha = 2,
        kErrorValue = 3, ///< a coding that a drawing should not hold
    };

    KdCmTransparency() = default;
    /// From the coding of drawing files: 0, 0x01000000, or 0x02000000 plus alpha.
    static KdCmTransparency fromWord(std::uint32_t word);

    Method method() const { return m_method; }
    void setMethod(Method method) { m_method = method; }
    /// 255 is opaque, 0 is clear; means something for `kByAlpha` alone.
    std::uint8_t alpha() const { return m_alpha; }
    void setAlpha(std::uint8_t alpha)
    {
        m_method = kByAlpha;
        m_alpha = alpha;
    }
    bool operator==(const KdCmTransparency&) const = default;

  private:
    Method m_method = kByLayer;
    std::uint8_t m_alpha = 255;
};
