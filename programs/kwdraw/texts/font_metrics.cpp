#include <kwdraw/texts/font_metrics.h>

#include <QFontMetricsF>
#include <QHash>

#include <array>
#include <atomic>
#include <cmath>
#include <memory>
#include <mutex>
#include <shared_mutex>
#include <unordered_map>

namespace {

constexpr int kMeasuredSize = 512; ///< pixels: large enough for widths free of rounding
constexpr char32_t kBasicPlane = 0x10000;

/// Letters of these writing systems change with their neighbours.
bool mayJoin(char32_t letter)
{
    return (letter >= 0x0300 && letter < 0x0370) || (letter >= 0x0590 && letter < 0x1100) ||
           (letter >= 0x1700 && letter < 0x1900) || (letter >= 0xFB1D && letter < 0xFE00);
}

/// What is known of one font. Widths are filled in by whoever asks first; two threads that ask for
/// the same letter at once write the same number.
class LetterWidths
{
  public:
    explicit LetterWidths(const SceneFont& font)
        : m_metrics(letterFont(font, kMeasuredSize)),
          m_capital(capitalHeight(m_metrics)),
          m_descent(std::max(0.0, m_metrics.tightBoundingRect(QStringLiteral("gjpqy")).bottom()) /
                    m_capital)
    {
    }

    double descent() const { return m_descent; }

    double ofText(const QString& text)
    {
        double width = 0.0;
        for (int at = 0; at < text.size(); ++at) {
            char32_t letter = text[at].unicode();
            if (mayJoin(letter))
                return measured(text);
            if (QChar::isHighSurrogate(letter) && at + 1 < text.size())
                letter = QChar::surrogateToUcs4(text[at], text[at + 1]);
            at += letter >= kBasicPlane ? 1 : 0;
            width += ofLetter(letter);
        }
        return width;
    }

  private:
    using Page = std::array<std::atomic<float>, 256>;
    static constexpr float kUnknown = -1.0F;

    static double capitalHeight(const QFontMetricsF& metrics)
    {
        // A font with no letters at all still has to have some size.
        const double height = metrics.capHeight();
        return height > 0.0 ? height : 0.7 * kMeasuredSize;
    }

    double ofLetter(char32_t letter)
    {
        if (letter >= kBasicPlane)
            return measured(QString::fromUcs4(&letter, 1));
        std::atomic<float>& place = pageOf(letter)[letter & 0xFF];
        float width = place.load(std::memory_order_relaxed);
        if (width == kUnknown) {
            width = static_cast<float>(measured(QString(QChar(static_cast<ushort>(letter)))));
            place.store(width, std::memory_order_relaxed);
        }
        return static_cast<double>(width);
    }

    double measured(const QString& text)
    {
        const std::lock_guard lock(m_measuring);
        return m_metrics.horizontalAdvance(text) / m_capital;
    }

    Page& pageOf(char32_t letter)
    {
        std::atomic<Page*>& slot = m_pages[letter >> 8];
        if (Page* page = slot.load(std::memory_order_acquire))
            return *page;
        const std::lock_guard lock(m_measuring);
        if (Page* page = slot.load(std::memory_order_acquire))
            return *page;
        std::unique_ptr<Page>& owned = m_ownedPages[letter >> 8];
        owned = std::make_unique<Page>();
        for (std::atomic<float>& width : *owned)
            width.store(kUnknown, std::memory_order_relaxed);
        slot.store(owned.get(), std::memory_order_release);
        return *owned;
    }

    std::mutex m_measuring;
    QFontMetricsF m_metrics;
    double m_capital;
    double m_descent;
    std::array<std::atomic<Page*>, 256> m_pages{};
    std::array<std::unique_ptr<Page>, 256> m_ownedPages;
};

struct FontHash
{
    std::size_t operator()(const SceneFont& font) const
    {
        return qHash(font.family) * 4U + (font.bold ? 2U : 0U) + (font.italic ? 1U : 0U);
    }
};

LetterWidths& widthsOf(const SceneFont& font)
{
    static std::shared_mutex access;
    static std::unordered_map<SceneFont, LetterWidths, FontHash> known;
    {
        const std::shared_lock lock(access);
        const auto entry = known.find(font);
        if (entry != known.end())
            return entry->second;
    }
    const std::lock_guard lock(access);
    return known.try_emplace(font, font).first->second;
}

} // namespace

double advanceOf(const SceneFont& font, const QString& text)
{
    return widthsOf(font).ofText(text);
}

double descentOf(const SceneFont& font)
{
    return widthsOf(font).descent();
}

QFont letterFont(const SceneFont& font, int pixelSize)
{
    QFont made(font.family);
    made.setPixelSize(pixelSize);
    made.setBold(font.bold);
    made.setItalic(font.italic);
    made.setKerning(false);
    made.setHintingPreference(QFont::PreferNoHinting);
    return made;
}
