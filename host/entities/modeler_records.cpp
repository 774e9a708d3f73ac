#include "modeler_records.h"

namespace {

using Kind = ModelerToken::Kind;

/// Behind the records there may be earlier states of the body.
bool endsBody(std::string_view name)
{
    return name.starts_with("End") || name.starts_with("Begin");
}

} // namespace

bool ModelerFields::isReversed() const
{
    if (words.empty())
        return false;
    const ModelerToken& word = words.front();
    return word.kind == Kind::Word ? word.text.starts_with("reverse") : word.number != 0.0;
}

ModelerRecords::ModelerRecords(std::string data) : m_data(std::move(data))
{
    ModelerTokens tokens(m_data);
    Record record{};
    while (readName(tokens, record) && !endsBody(record.name)) {
        m_records.push_back(record);
        if (!skipContent(tokens))
            break;
    }
    learnForm();
}

/// The name is one word with hyphens in the text form, and several words in the binary one. It may
/// stand behind the record's number.
bool ModelerRecords::readName(ModelerTokens& tokens, Record& record) const
{
    ModelerToken token;
    do {
        if (!tokens.next(token))
            return false;
    } while (token.kind == Kind::Number);
    if (token.kind != Kind::Word)
        return false;
    record.name = token.text.substr(0, token.text.find('-'));
    std::size_t begin = 0;
    do {
        record.kind = token.text.substr(token.text.rfind('-') + 1);
        begin = tokens.offset();
    } while (tokens.next(token) && token.kind == Kind::Word);
    record.begin = begin;
    tokens = ModelerTokens(m_data, begin);
    return true;
}

bool ModelerRecords::skipContent(ModelerTokens& tokens)
{
    ModelerToken token;
    bool opened = false;
    for (std::size_t begin = tokens.offset(); tokens.next(token); begin = tokens.offset()) {
        if (token.kind == Kind::RecordEnd)
            return true;
        if (opened && !(token.kind == Kind::Word && token.text == "ref"))
            m_parts.push_back(begin);
        opened = token.kind == Kind::Open;
    }
    return false;
}

/// All records begin with a reference to their attributes; since version 7, with a number and one
/// more reference behind it.
void ModelerRecords::learnForm()
{
    for (int i = 0; i < count(); ++i) {
        if (!isKind(i, "body"))
            continue;
        constexpr std::size_t kReferencesOfBody = 3;
        const ModelerFields all = fields(i);
        const bool isLong = !all.numbers.empty();
        m_commonNumbers = isLong ? 1 : 0;
        m_commonReferences = isLong && all.references.size() > kReferencesOfBody ? 2 : 1;
        return;
    }
}

bool ModelerRecords::isKind(int record, std::string_view kind) const
{
    return record >= 0 && record < count() &&
           m_records[static_cast<std::size_t>(record)].kind == kind;
}

std::string_view ModelerRecords::name(int record) const
{
    return record >= 0 && record < count() ? m_records[static_cast<std::size_t>(record)].name
                                           : std::string_view();
}

ModelerTokens ModelerRecords::tokens(int record) const
{
    return {m_data, m_records[static_cast<std::size_t>(record)].begin};
}

ModelerTokens ModelerRecords::sharedPart(int number) const
{
    const bool exists = number >= 0 && static_cast<std::size_t>(number) < m_parts.size();
    return {m_data, exists ? m_parts[static_cast<std::size_t>(number)] : m_data.size()};
}

ModelerFields ModelerRecords::fields(int record) const
{
    ModelerFields result;
    if (record < 0 || record >= count())
        return result;
    std::size_t commonReferences = m_commonReferences;
    std::size_t commonNumbers = m_commonNumbers;
    ModelerTokens rest = tokens(record);
    ModelerToken token;
    while (rest.next(token) && token.kind != Kind::RecordEnd) {
        if (token.kind == Kind::Reference && commonReferences > 0)
            --commonReferences;
        else if (token.kind == Kind::Reference)
            result.references.push_back(static_cast<int>(token.number));
        else if (token.kind == Kind::Number && commonNumbers > 0)
            --commonNumbers;
        else if (token.kind == Kind::Number)
            result.numbers.push_back(token.number);
        else
            result.words.push_back(token);
    }
    return result;
}
