// The records of a solid modeler's data: topology and geometry, tied by their numbers.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "modeler_tokens.h"

/// What a record holds, by kind and in order, without what all records begin with. Which value is
/// which differs little between versions once they are sorted like this.
struct ModelerFields
{
    std::vector<int> references;
    std::vector<double> numbers;
    std::vector<ModelerToken> words; ///< words, flags and choices

    /// -1 if there are not that many.
    int reference(std::size_t index) const
    {
        return index < references.size() ? references[index] : -1;
    }
    /// The first word, if it tells a direction: true for the opposite one.
    bool isReversed() const;
};

class ModelerRecords
{
  public:
    explicit ModelerRecords(std::string data);
    ModelerRecords(const ModelerRecords&) = delete;
    ModelerRecords& operator=(const ModelerRecords&) = delete;

    /// Records are numbered from 0.
    int count() const { return static_cast<int>(m_records.size()); }
    /// True if the record is of that kind: "face", "curve". False for a number out of range.
    bool isKind(int record, std::string_view kind) const;
    /// The most special name, such as "ellipse" for a curve; empty for a number out of range.
    std::string_view name(int record) const;
    ModelerFields fields(int record) const;
    /// All tokens behind the name. The record must exist.
    ModelerTokens tokens(int record) const;
    /// The tokens of the part that `{ ref n }` speaks of; at the end of all data if there is none.
    ModelerTokens sharedPart(int number) const;

  private:
    struct Record
    {
        std::string_view name; ///< the first part
        std::string_view kind; ///< the last part
        std::size_t begin;     ///< of what follows the name
    };

    bool readName(ModelerTokens& tokens, Record& record) const;
    bool skipContent(ModelerTokens& tokens);
    void learnForm();

    std::string m_data;
    std::vector<Record> m_records;
    std::vector<std::size_t> m_parts; ///< where parts with a form of their own begin
    std::size_t m_commonReferences = 1;
    std::size_t m_commonNumbers = 0;
};
