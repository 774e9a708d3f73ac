// Splits the data of a solid modeler into tokens. The text form and the binary form give the same
// ones.
#pragma once

#include <cstdint>
#include <string_view>

struct ModelerToken
{
    enum class Kind : std::uint8_t
    {
        Number,
        Reference, ///< `number` is that of a record, -1 for none
        Word,      ///< in `text`
        Flag,      ///< `number` is 1 for true; only in the binary form
        Choice,    ///< one of an enumeration; only in the binary form
        Open,      ///< a part of the record with a form of its own begins
        Close,
        RecordEnd,
    };

    Kind kind = Kind::RecordEnd;
    double number = 0.0;
    std::string_view text; ///< inside the data
};

class ModelerTokens
{
  public:
    /// Begins at the first record, or at a place that `offset` told.
    explicit ModelerTokens(std::string_view data);
    ModelerTokens(std::string_view data, std::size_t offset);

    /// False at the end, or where the data is damaged.
    bool next(ModelerToken& token);
    /// Where the next token begins; not to be asked between the numbers of a point.
    std::size_t offset() const { return m_at; }

  private:
    bool skipTextHeader();
    bool skipBinaryHeader();
    bool nextInText(ModelerToken& token);
    void classify(std::string_view word, ModelerToken& token);
    bool takeCounted(ModelerToken& token);
    bool nextInBinary(ModelerToken& token);
    template <class T>
    bool take(T& value);
    template <class Length>
    bool takeText(ModelerToken& token);
    template <class T>
    bool takeNumber(ModelerToken& token);

    std::string_view m_data;
    std::size_t m_at = 0;
    int m_coordinatesLeft = 0; ///< of a point in the binary form
    bool m_binary;
};
