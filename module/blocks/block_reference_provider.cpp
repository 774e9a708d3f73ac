#include <blocks/block_reference_providers.h>

#include <database/block_table.h>
#include <database/class_ids.h>
#include <editor/system_variables.h>
#include <entities/center_object.h>

#include <blocks/block_units.h>
#include <blocks/blocks_in_use.h>
#include <providers/row_readers.h>
#include <values/names.h>
#include <values/value_lists.h>

namespace {

using Wrapper = KdDbSmartCenterObjectWrapper;

const KdDbBlockReference& referenceOf(const PropertyRequest& request)
{
    return static_cast<const KdDbBlockReference&>(request.entity);
}

double scaleX(const KdDbBlockReference& reference)
{
    return reference.scaleFactors().sx;
}

double scaleY(const KdDbBlockReference& reference)
{
    return reference.scaleFactors().sy;
}

double scaleZ(const KdDbBlockReference& reference)
{
    return reference.scaleFactors().sz;
}

bool blockName(const PropertyRequest& request, ValueKind kind)
{
    request.head.setRestype(kind);
    const OpenForRead<KdDbBlockTableRecord> block(sourceBlockOf(referenceOf(request)));
    if (block)
        request.head.setString(block->name());
    return true;
}

/// Blocks of the drawing stand beside blocks of the drawing, external ones beside external ones.
bool blocksInUse(const PropertyRequest& request)
{
    if (!request.withChoices)
        return true;
    bool isExternal = false;
    if (const OpenForRead<KdDbBlockTableRecord> block(sourceBlockOf(referenceOf(request))); block)
        isExternal = block->isFromExternalReference();
    ResBuf* tail = &request.head;
    for (const KdString& name : namesOfBlocksInUse(referenceOf(request), isExternal))
        tail = PropListUtil::addElementToArray(tail, name);
    return true;
}

bool unitName(const PropertyRequest& request, ValueKind kind)
{
    const OpenForRead<KdDbBlockTableRecord> block(sourceBlockOf(referenceOf(request)));
    if (!block)
        return false;
    request.head.setRestype(kind);
    request.head.setString(blockUnitName(block->blockInsertUnits()));
    return true;
}

double unitFactor(const KdDbBlockReference& reference)
{
    resbuf drawingUnit{};
    kdedGetVar(L"INSUNITS", &drawingUnit);
    const OpenForRead<KdDbBlockTableRecord> block(sourceBlockOf(reference));
    return blockUnitFactor(block ? block->blockInsertUnits() : 0, drawingUnit.resval.rint);
}

constexpr int kRotationKey = 77415;

// clang-format off
constexpr PropertyRow kRows[] = {
    // key: id, default text                 read-only  kind              value                                  choices
    {{77408, L"Geometry:Position"},          editable,  ResBuf::kPoint3d, value<&KdDbBlockReference::position>},
    {{77411, L"Geometry:Scale X"},           editable,  ResBuf::kReal,    value<scaleX>},
    {{77412, L"Geometry:Scale Y"},           editable,  ResBuf::kReal,    value<scaleY>},
    {{77413, L"Geometry:Scale Z"},           editable,  ResBuf::kReal,    value<scaleZ>},
    {{77414, L"Misc:Name"},                  derived,   ResBuf::kString,  blockName,                             blocksInUse},
    {{kRotationKey, L"Misc:Rotation"},       editable,  ResBuf::kAngle,   value<&KdDbBlockReference::rotation>},
    {{78151, L"Misc:Annotative"},            derived,   ResBuf::kBool,    value<&KdDbObject::isAnnotative>},
    {{77524, L"Misc:Block Unit"},            derived,   ResBuf::kString,  unitName},
    {{77525, L"Misc:Unit factor"},           derived,   ResBuf::kReal,    value<unitFactor>},
};

constexpr ResourceText kAttributeCategory{77571, L"Attributes:"};
constexpr ResourceText kDynamicCategory{77676, L"Custom:"};
// clang-format on

/// The row of a key. The rotation of a centre mark is not that of its reference.
const PropertyRow* findOwnRow(const KdString& name, int centerType)
{
    const PropertyRow* row = findRow(kRows, name);
    const bool isMark = (centerType & ~Wrapper::kDetached) == Wrapper::kCenterMark;
    return row && row->key.id == kRotationKey && isMark ? nullptr : row;
}

struct ArrayKindRow
{
    CLSID classId;
    void (KdDbBlockReference_Extension::*list)(const KdDbBlockReference*, KdArray<KdString>&,
                                               KdArray<bool>&);
};

constexpr ArrayKindRow kArrayKinds[] = {
    {CLSID_KdadAssocArrayRect, &KdDbBlockReference_Extension::assocArrayRectPropertyCount},
    {CLSID_KdadAssocArrayPolar, &KdDbBlockReference_Extension::assocArrayPolarPropertyCount},
    {CLSID_KdadAssocArrayPath, &KdDbBlockReference_Extension::assocArrayPathPropertyCount},
};

/// The operation that lists the keys of a reference's kind.
auto listerOf(const KdDbBlockReference& reference)
{
    CLSID classId{};
    reference.getClassID(&classId);
    for (const ArrayKindRow& row : kArrayKinds) {
        if (classId == row.classId)
            return row.list;
    }
    switch (Wrapper::getCenterType(reference.objectId())) {
    case Wrapper::kCenterLine:
        return &KdDbBlockReference_Extension::centerlinePropertyCount;
    case Wrapper::kCenterMark:
        return &KdDbBlockReference_Extension::centerMarkPropertyCount;
    default:
        return &KdDbBlockReference_Extension::blockReferencePropertyCount;
    }
}

} // namespace

int KdDbBlockReference_Extension::PropertyCount(const KdDbEntity* entity, KdArray<KdString>& names,
                                                KdArray<bool>& flags)
{
    if (!entity || !entity->isKindOf(KdDbBlockReference::desc()))
        return 0;
    const auto* reference = static_cast<const KdDbBlockReference*>(entity);
    const int status = KdDbEntityPE::PropertyCount(entity, names, flags);
    (this->*listerOf(*reference))(reference, names, flags);
    return status;
}

void KdDbBlockReference_Extension::blockReferencePropertyCount(const KdDbBlockReference* reference,
                                                               KdArray<KdString>& names,
                                                               KdArray<bool>& flags)
{
    listRows(kRows, reference, names, flags);
}

void KdDbBlockReference_Extension::initFuncsMap()
{
    if (!m_arrayGetters.empty())
        return;
    fillArrayGetters(m_arrayGetters);
    fillCenterGetters(m_centerGetters);
}

int KdDbBlockReference_Extension::PropertyValueGet(const KdDbEntity* entity, KdString name,
                                                   ResBuf*& result, bool asDisplayText,
                                                   bool withChoices)
{
    if (!entity || !entity->isKindOf(KdDbBlockReference::desc()))
        return 0;
    // The getters are part of a fixed interface, which does not promise that they only read.
    auto* reference =
        const_cast<KdDbBlockReference*>(static_cast<const KdDbBlockReference*>(entity));
    initFuncsMap();
    const int centerType = Wrapper::getCenterType(reference->objectId());
    if (const PropertyRow* row = findOwnRow(name, centerType))
        return answerRow(*row, {*entity, *result, asDisplayText, withChoices});
    for (const Getters* getters : {&m_arrayGetters, &m_centerGetters}) {
        if (const auto found = getters->find(name); found != getters->end()) {
            (this->*found->second)(reference, result);
            return 1;
        }
    }
    if (KdDbEntityPE::PropertyValueGet(entity, name, result, asDisplayText, withChoices))
        return 1;
    return answerOpenKey(reference, result, name) ? 1 : 0;
}

LastingRow KdDbBlockReference_Extension::lastingRow(const KdRxClass& rxClass, const KdString& key)
{
    if (!rxClass.isDerivedFrom(KdDbBlockReference::desc()))
        return nullptr;
    const LastingRow own = findLastingRow(kRows, key);
    if (own != nullptr)
        return own && (*own)->key.id == kRotationKey ? LastingRow() : own;
    initFuncsMap();
    if (m_arrayGetters.contains(key) || m_centerGetters.contains(key))
        return std::nullopt;
    const LastingRow general = findLastingRow(generalRows(), key);
    return general == nullptr ? LastingRow() : general; // attributes have keys of their own
}

bool KdDbBlockReference_Extension::answerOpenKey(KdDbBlockReference* reference, ResBuf*& result,
                                                 std::wstring_view name)
{
    const std::size_t colon = name.find(L':');
    if (colon == std::wstring_view::npos)
        return false;
    const std::wstring_view category = name.substr(0, colon);
    const std::wstring_view rest = name.substr(colon + 1);
    // Only texts without a colon match; the defaults have one, as intended.
    bool answered = false;
    if (kAttributeCategory.matches(category))
        answered = fillAttributesInformation(reference, result, rest);
    if (kDynamicCategory.matches(category) && KdDbDynBlockReference(*reference).isDynamicBlock())
        answered = fillDinamicBlocInformation(reference, result, rest);
    return answered;
}
