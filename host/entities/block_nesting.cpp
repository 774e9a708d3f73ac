#include <entities/block_nesting.h>

#include <unordered_map>

#include <entities/block_reference.h>

namespace {

/// Walks from block to block along the references, with a stack of its own: blocks may be nested
/// as deep as a drawing has blocks.
class LoopSearch
{
  public:
    void visit(KdDbObjectId block)
    {
        enter(block);
        while (!m_path.empty()) {
            Step& step = m_path.back();
            if (step.next < step.references.size()) {
                follow(step.references[step.next++]);
            } else {
                m_states[step.block] = State::Done;
                m_path.pop_back();
            }
        }
    }

    std::vector<KdDbObjectId> takeLoops() { return std::move(m_loops); }

  private:
    enum class State
    {
        New,
        OnPath,
        Done,
    };
    struct Reference
    {
        KdDbObjectId id;
        KdDbObjectId block;
    };
    struct Step
    {
        KdDbObjectId block;
        std::vector<Reference> references;
        std::size_t next = 0;
    };

    static std::vector<Reference> referencesIn(KdDbObjectId block)
    {
        std::vector<Reference> references;
        const OpenForRead<KdDbBlockTableRecord> record(block);
        if (!record)
            return references;
        for (const KdDbObjectId id : record->entityIds()) {
            if (!id.isKindOf(KdDbBlockReference::desc()))
                continue;
            const OpenForRead<KdDbBlockReference> reference(id);
            if (reference && !reference->blockTableRecord().isNull())
                references.push_back({id, reference->blockTableRecord()});
        }
        return references;
    }

    void enter(KdDbObjectId block)
    {
        State& state = m_states[block];
        if (state != State::New)
            return;
        state = State::OnPath;
        m_path.push_back({block, referencesIn(block)});
    }

    void follow(const Reference& reference)
    {
        if (m_states[reference.block] == State::OnPath)
            m_loops.push_back(reference.id);
        else
            enter(reference.block);
    }

    std::unordered_map<KdDbObjectId, State> m_states;
    std::vector<Step> m_path;
    std::vector<KdDbObjectId> m_loops;
};

} // namespace

std::vector<KdDbObjectId> kddbReferencesThatLoop(const KdDbDatabase& database)
{
    LoopSearch search;
    for (const KdDbObjectId block : database.table<KdDbBlockTable>().recordIds())
        search.visit(block);
    return search.takeLoops();
}
