/// The dynamic side of block references: properties whose values differ from one reference of a
/// block to the next.
#pragma once

#include <entities/block_reference.h>
#include <entities/dyn_block_parameters.h>

/// One property of one reference. A plain value; it names its parameter, but needs no open object.
class KW_EXPORT KdDbDynBlockReferenceProperty
{
  public:
    enum UnitsType : int ///< a drawing may hold other numbers
    {
        kNoUnits = 0,
        kAngle = 1,    ///< radians
        kDistance = 2, ///< units of the block
        kArea = 3,
    };

    KdDbDynBlockReferenceProperty() = default;
    KdDbDynBlockReferenceProperty(const BlockParameterLabel& label, KdDbEvalVariant value,
                                  UnitsType unitsType, KdDbObjectId parameter, bool shown)
        : m_name(label.name),
          m_description(label.description),
          m_value(std::move(value)),
          m_unitsType(unitsType),
          m_parameter(parameter),
          m_shown(shown)
    {
    }

    const KdString& propertyName() const { return m_name; }
    const KdString& description() const { return m_description; }
    const KdDbEvalVariant& value() const { return m_value; }
    /// What the value measures; above `kArea` what has no name here.
    UnitsType unitsType() const { return m_unitsType; }
    /// True if it is listed among the properties of references.
    bool show() const { return m_shown; }
    KdDbObjectId parameterId() const { return m_parameter; }
    /// The values that the property takes, in their order; none if it takes any.
    KdArray<KdDbEvalVariant> getAllowedValues() const;

  private:
    KdString m_name;
    KdString m_description;
    KdDbEvalVariant m_value;
    UnitsType m_unitsType = kNoUnits;
    KdDbObjectId m_parameter;
    bool m_shown = false;
};
using KdDbDynBlockReferencePropertyArray = KdArray<KdDbDynBlockReferenceProperty>;

/// Looks at a reference as one of a dynamic block. Made for a moment; keeps nothing open.
class KW_EXPORT KdDbDynBlockReference
{
  public:
    explicit KdDbDynBlockReference(const KdDbBlockReference& reference) : m_reference(reference) {}

    /// True if the block, or the one that it is an anonymous copy of, is dynamic.
    bool isDynamicBlock() const;
    static bool isDynamicBlock(KdDbObjectId block);
    /// The block as it was drawn, before this reference was changed.
    KdDbObjectId dynamicBlockTableRecord() const;
    /// Appends the properties in the order of the block's parameters; a parameter may have two. A
    /// value that the reference does not state is that of the definition.
    void getBlockProperties(KdDbDynBlockReferencePropertyArray& properties) const;

  private:
    const KdDbBlockReference& m_reference;
};
