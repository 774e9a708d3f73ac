// Attributes and dynamic properties: what their keys ask for is known only at run time.
#include <string>

#include <database/block_table.h>
#include <entities/attribute.h>
#include <entities/dyn_block_reference.h>

#include <blocks/block_reference_providers.h>
#include <providers/row_readers.h>
#include <values/names.h>
#include <values/value_lists.h>

namespace {

bool blockHasAttributes(const KdDbBlockReference& reference)
{
    const OpenForRead<KdDbBlockTableRecord> block(sourceBlockOf(reference));
    return block && block->hasAttributeDefinitions();
}

/// A text, or a 16-bit number in digits; false for any other kind.
bool isChoiceText(const KdDbEvalVariant& value, KdString& text)
{
    constexpr short kTextCode = 1;
    constexpr short kShortCode = 70;
    switch (value.restype()) {
    case RTSTR:
    case kTextCode:
        return value.getValue(text) == eOk;
    case kShortCode: {
        int number = 0;
        value.getValue(number);
        text = KdString(std::to_wstring(number));
        return true;
    }
    default:
        return false;
    }
}

void storeChoice(const KdDbDynBlockReferenceProperty& property, ResBuf& head)
{
    KdString text;
    if (!isChoiceText(property.value(), text))
        return;
    head.setRestype(ResBuf::kString);
    head.setString(text);
    const KdArray<KdDbEvalVariant> allowed = property.getAllowedValues();
    ResBuf* tail = &head;
    for (int i = 0; i < allowed.length(); ++i) {
        if (isChoiceText(allowed[i], text))
            tail = PropListUtil::addElementToArray(tail, text);
    }
}

void storeReal(const KdDbDynBlockReferenceProperty& property, ValueKind kind, ResBuf& head)
{
    double real = 0.0;
    property.value().getValue(real);
    head.setRestype(kind);
    head.setDouble(real);
}

bool storeProperty(const KdDbDynBlockReferenceProperty& property, ResBuf& head)
{
    switch (property.unitsType()) {
    case KdDbDynBlockReferenceProperty::kNoUnits:
        storeChoice(property, head);
        return true;
    case KdDbDynBlockReferenceProperty::kAngle:
        storeReal(property, ResBuf::kAngle, head);
        return true;
    case KdDbDynBlockReferenceProperty::kDistance:
        storeReal(property, ResBuf::kReal, head);
        return true;
    case KdDbDynBlockReferenceProperty::kArea:
        return false;
    default:
        return true; // recognised, but no kind of record holds it
    }
}

} // namespace

bool KdDbBlockReference_Extension::fillAttributesInformation(KdDbBlockReference* reference,
                                                             ResBuf*& result, std::wstring_view tag)
{
    if (!reference || !blockHasAttributes(*reference))
        return false;
    const auto iterator = reference->attributeIterator();
    for (; !iterator->done(); iterator->step()) {
        const OpenForRead<KdDbAttribute> attribute(iterator->objectId());
        if (!attribute || attribute->tag().view() != tag)
            continue;
        result->setRestype(ResBuf::kString);
        result->setString(attribute->textString());
        chainTag(*result, 0);
        return true;
    }
    return false;
}

bool KdDbBlockReference_Extension::fillDinamicBlocInformation(KdDbBlockReference* reference,
                                                              ResBuf*& result,
                                                              std::wstring_view name)
{
    if (!reference || !reference->isKindOf(KdDbBlockReference::desc()))
        return false;
    const KdDbDynBlockReference dynamic(*reference);
    if (!dynamic.isDynamicBlock())
        return false;
    KdDbDynBlockReferencePropertyArray properties;
    dynamic.getBlockProperties(properties);
    for (int i = 0; i < properties.length(); ++i) {
        const KdString& found = properties[i].propertyName();
        if (found.compareNoCase(L"ORIGIN") != 0 && found.view() == name)
            return storeProperty(properties[i], *result);
    }
    return false;
}

bool KdDbBlockReference_Extension::fillSmartBlockInformation(KdDbBlockReference* reference,
                                                             ResBuf*& result,
                                                             std::wstring_view name)
{
    return fillDinamicBlocInformation(reference, result, name);
}
