#include <command/property_listing.h>

#include <algorithm>
#include <utility>
#include <vector>

#include <command/gathering.h>
#include <plugin/entity_pe.h>
#include <values/class_map.h>
#include <values/display_name.h>
#include <values/operators.h>
#include <values/value_chain.h>

namespace {

using quick_select::Entity;
using quick_select::Property;
using quick_select::Type;
using quick_select::Value;

/// Records as plain values. The texts are kept alive beside them.
class PlainValues
{
  public:
    /// Takes records from `first` on, up to but without `end`, as far as they are of `restype`.
    void take(const ResBuf* first, const ResBuf* end, int restype)
    {
        for (const ResBuf* record = first; record != end; record = record->next()) {
            if (record->restype() == restype)
                m_values.push_back(plain(*record));
        }
    }

    const Value* data() const { return m_values.data(); }
    std::size_t size() const { return m_values.size(); }

  private:
    Value plain(const ResBuf& record)
    {
        const bool is2d = record.restype() == ResBuf::kPoint2d;
        const KdGePoint3d& point = record.getPoint3d();
        const KdGePoint2d& point2d = record.getPoint2d();
        m_texts.push_back(record.getString());
        return {record.restype(),
                m_texts.back().kwszPtr(),
                record.getDouble(),
                integerOf(record),
                {is2d ? point2d.x : point.x, is2d ? point2d.y : point.y, point.z}};
    }

    static long long integerOf(const ResBuf& record)
    {
        if (record.restype() == ResBuf::kBool)
            return record.getBool();
        if (record.restype() == ResBuf::kColor)
            return record.getColor().color();
        return record.getInt32();
    }

    std::vector<Value> m_values;
    std::vector<KdString> m_texts;
};

bool isPoint(int restype)
{
    return restype == ResBuf::kPoint2d || restype == ResBuf::kPoint3d;
}

Candidates gather(const long* ss)
{
    Candidates candidates;
    if (ss)
        gatherMembers(ss, candidates);
    else
        gatherSpace(candidates);
    return candidates;
}

const CandidateList& allOf(const Candidates& candidates, const long* ss)
{
    return ss ? candidates.selectionEntities : candidates.allEntities;
}

/// The chain of a point property holds points of the entity; any other chain holds choices behind
/// the head.
void visitProperty(const KdDbEntity& entity, KdDbEntityPE& provider, const KdString& key,
                   bool readOnly, bool withChoices, quick_select::PropertyVisitor visitor,
                   void* context)
{
    ValueChain chain;
    provider.PropertyValueGet(&entity, key, chain.head(), false, withChoices);
    const ResBuf* head = chain.head();
    PlainValues values;
    PlainValues choices;
    if (head->restype() != ResBuf::kNone) {
        const bool severalPoints = isPoint(head->restype());
        values.take(head, severalPoints ? nullptr : head->next(), head->restype());
        if (!severalPoints)
            choices.take(head->next(), nullptr, head->restype());
    }
    visitor(context, Property{key.kwszPtr(), readOnly, values.data(), values.size(), choices.data(),
                              choices.size()});
}

} // namespace

void listTypes(const long* ss, quick_select::TypeVisitor visitor, void* context)
{
    const Candidates candidates = gather(ss);
    const auto& examples = ss ? candidates.selectionTypeEntities : candidates.drawingTypeEntities;
    const CandidateList& all = allOf(candidates, ss);
    for (const KdDbEntity* example : examples) {
        const auto kind = std::find_if(all.kinds().begin(), all.kinds().end(),
                                       [&](const CandidateKind& k) { return k.first == example; });
        visitor(context, Type{kind->displayName.c_str(), kind->rxClass->name(), example->objectId(),
                              kind->count});
    }
}

void listEntities(const long* ss, quick_select::EntityVisitor visitor, void* context)
{
    const Candidates candidates = gather(ss);
    const CandidateList& all = allOf(candidates, ss);
    for (std::size_t i = 0; i < all.size(); ++i) {
        const CandidateKind& kind = all.kindOf(i);
        visitor(context, Entity{all[i].objectId(), kind.rxClass->name(), kind.displayName.c_str()});
    }
}

void listProperties(KdDbObjectId id, const wchar_t* onlyKey, bool withChoices,
                    quick_select::PropertyVisitor visitor, void* context)
{
    const OpenForRead<KdDbEntity> entity(id);
    KdDbEntityPE* provider = entity ? KdDbEntityPE::of(*entity) : nullptr;
    if (!provider)
        return;
    KdArray<KdString> keys;
    KdArray<bool> flags;
    if (onlyKey)
        keys.append(KdString(onlyKey));
    else
        provider->PropertyCount(entity.get(), keys, flags);
    for (int i = 0; i < keys.length(); ++i) {
        const bool readOnly = i < flags.length() && flags[i];
        visitProperty(*entity, *provider, keys[i], readOnly, withChoices, visitor, context);
    }
}

void listOperators(int restype, quick_select::OperatorVisitor visitor, void* context)
{
    for (const Operators op : operatorsOf(restype))
        visitor(context, operatorText(op));
}
