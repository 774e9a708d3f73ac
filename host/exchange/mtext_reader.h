// Reads texts of several lines, which are entities or stand inside other records.
#pragma once

#include <optional>
#include <string>

#include <entities/mtext.h>

#include "record_reader.h"

namespace dxf {

/// Gathers the groups of one text. When all are taken, `finish` puts together what several groups
/// tell.
class MTextReader
{
  public:
    explicit MTextReader(MTextData& text) : m_text(text) {}

    /// Takes the group if it is the text's.
    bool take(RecordReader& reader);
    void finish(RecordReader& reader);

  private:
    bool takePlace(RecordReader& reader);
    bool takeSetting(RecordReader& reader);
    bool takeGround(RecordReader& reader);
    void takeLetters(RecordReader& reader);

    MTextData& m_text;
    std::string m_letters; ///< of the pieces before the last, not decoded: one may end in a letter
    std::optional<double> m_angle; ///< radians
    bool m_hasFillRgb = false;
};

/// The text's style, the standard one where the drawing names none.
KdDbObjectId standardTextStyle(DrawingSource& source);

} // namespace dxf
