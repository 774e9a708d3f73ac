/// Pieces of a text, each in its place.
#pragma once

#include <QString>

#include <algorithm>
#include <cstdint>
#include <vector>

/// Letters of one look on one base line.
struct TextRun
{
    QString letters;
    std::uint32_t look = 0; ///< in the list of looks
    double x = 0.0;         ///< where the base line begins
    double y = 0.0;
    double width = 0.0;
};

/// A stroke that is part of a text, as between the rows of a fraction.
struct TextBar
{
    std::uint32_t look = 0;
    double x1 = 0.0;
    double y1 = 0.0;
    double x2 = 0.0;
    double y2 = 0.0;
};

struct TextPieces
{
    std::vector<TextRun> runs;
    std::vector<TextBar> bars;

    /// Takes over pieces of another text that is moved by (x, y).
    void add(const TextPieces& other, double x, double y)
    {
        for (TextRun run : other.runs) {
            run.x += x;
            run.y += y;
            runs.push_back(std::move(run));
        }
        for (TextBar bar : other.bars)
            bars.push_back({bar.look, bar.x1 + x, bar.y1 + y, bar.x2 + x, bar.y2 + y});
    }
};
