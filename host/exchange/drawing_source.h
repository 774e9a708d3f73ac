// What stays of a drawing file once it is indexed: its bytes and all that is needed to read them.
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include <database/database.h>
#include <database/dimension_style.h>

#include "body_data.h"
#include "file_bytes.h"
#include "file_form.h"
#include "text_decoder.h"

namespace dxf {

/// What the CLASSES section says of a kind that is not built in.
struct ForeignClass
{
    KdString dxfName;
    KdString className;
};

/// Finds the records of one table by the undecoded names that entities use.
template <class Table>
class NamedRecords
{
  public:
    /// The record of that name. One that is not there is noted and, if `make`, made with its
    /// defaults.
    KdDbObjectId find(KdDbDatabase& database, const TextDecoder& decoder, Findings& findings,
                      DrawingFinding missing, const Group& name, KdDbHandle user, bool make)
    {
        const auto known = m_ids.find(name.text);
        if (known != m_ids.end())
            return known->second;
        const KdString text = decoder.decode(name.text);
        KdDbObjectId id;
        if (database.table<Table>().getIdAt(text.kwszPtr(), id) != eOk) {
            findings.add(missing, name.offset, text, user);
            if (!make)
                return {};
            id = database.addRecord<Table>(text)->objectId();
        }
        m_ids.emplace(name.text, id);
        return id;
    }

  private:
    std::unordered_map<std::string_view, KdDbObjectId> m_ids; ///< keys lie in the file's bytes
};

struct DrawingSource
{
    explicit DrawingSource(KdDbDatabase& owner) : database(owner) {}
    /// A source over the bytes of `other`, which must outlive it, for reading members in a thread
    /// of its own; see `mayBeReadBeside`. It never changes the database. An object of which it
    /// notes a finding, or that it leaves, is to be read again by `other`.
    struct Beside
    {
        const DrawingSource& other;
    };
    explicit DrawingSource(Beside beside);

    KdDbObjectId linetype(const Group& name)
    {
        return linetypes.find(database, decoder, findings, DrawingFinding::UndefinedLinetype, name,
                              reading, !isBeside());
    }
    KdDbObjectId textStyle(const Group& name)
    {
        return textStyles.find(database, decoder, findings, DrawingFinding::UndefinedStyle, name,
                               reading, !isBeside());
    }
    KdDbObjectId dimensionStyle(const Group& name)
    {
        return dimensionStyles.find(database, decoder, findings, DrawingFinding::UndefinedStyle,
                                    name, reading, !isBeside());
    }
    bool isBeside() const { return other != nullptr; }
    /// For readers about to change the database or to look into other objects: true if this source
    /// may not, because it only reads along. The reader then need not go on with the object.
    bool leave()
    {
        hasLeft = isBeside();
        return hasLeft;
    }
    /// The null id if there is no such block, which is noted.
    KdDbObjectId block(const Group& name);
    /// The viewport that comes first in a block.
    KdDbObjectId firstViewport(KdDbObjectId block);
    /// The other columns of a text, where they are entities of their own; else null.
    const std::vector<KdDbObjectId>* columnsOf(KdDbObjectId text) const;
    /// The groups of a record. What is wrong with their codes was noted by the index pass.
    GroupStream groups(SourceRange range) const
    {
        return {form, range.offset, range.offset + range.length, nullptr};
    }

    KdDbDatabase& database;
    const DrawingSource* const other = nullptr; ///< the one for which it only reads along
    bool hasLeft = false;                       ///< an object, see `leave`
    FileBytes bytes;
    FileForm form;
    KdDbHandle reading = 0; ///< of the object whose members are being read
    int version = 1009;     ///< the number in the version's name
    TextDecoder decoder;
    Findings findings;
    std::vector<ForeignClass> classes; ///< in the order of the file
    NamedRecords<KdDbLinetypeTable> linetypes;
    NamedRecords<KdDbTextStyleTable> textStyles;
    NamedRecords<KdDbDimStyleTable> dimensionStyles;
    KdDbObjectId standardStyle; ///< of texts, once it was asked for
    std::unordered_map<std::string_view, KdDbObjectId> blocks;
    std::unordered_map<KdDbObjectId, KdDbObjectId> firstViewports;
    BodyDataIndex bodies;
    /// By the first column of a text the others; of the source that does not only read along.
    std::unordered_map<KdDbObjectId, std::vector<KdDbObjectId>> textColumns;
};

} // namespace dxf
