/// Attributes of block references and their definitions.
#pragma once

#include <memory>

#include <entities/mtext.h>
#include <entities/text.h>

struct KW_EXPORT AttributeMembers : TextMembers
{
    struct Mode
    {
        bool invisible = false; ///< apart from the entity's own visibility
        bool constant = false;
        bool verify = false;
        bool preset = false;
        bool positionLocked = false;
    };

    KdString tag;
    std::int16_t fieldLength = 0;
    Mode mode;
    /// Of an attribute with several lines, which the text itself can't hold; null for a single one.
    std::unique_ptr<KdDbMText> lines;
};

/// What attributes and their definitions share; no runtime class of its own.
class KW_EXPORT KdDbAttributeText : public KdDbText
{
  public:
    KD_DB_MEMBERS(AttributeMembers)

    const KdString& tag() const { return data().tag; }
    std::int16_t fieldLength() const { return data().fieldLength; }
    /// The attribute's own mode, which `KdDbEntity::isInvisible()` knows nothing of.
    bool isInvisible() const { return data().mode.invisible; }
    bool isConstant() const { return data().mode.constant; }
    bool isVerifiable() const { return data().mode.verify; }
    bool isPreset() const { return data().mode.preset; }
    bool lockPositionInBlock() const { return data().mode.positionLocked; }

    /// The box around all lines of one that has several.
    KdErrorStatus getGeomExtents(KdGeExtents3d& extents) const override;
};

/// The text that fills an attribute of one block reference.
class KW_EXPORT KdDbAttribute : public KdDbAttributeText
{
    KD_RX_DECLARE(KdDbAttribute)

    bool isMTextAttribute() const { return data().lines != nullptr; }
    /// The text of several lines, or null; it belongs to the attribute.
    const KdDbMText* getMTextAttributeConst() const { return data().lines.get(); }
};

struct KW_EXPORT AttributeDefinitionMembers : AttributeMembers
{
    KdString prompt;
};

/// Inside a block: what the attributes of its references are called and what they begin with.
class KW_EXPORT KdDbAttributeDefinition : public KdDbAttributeText
{
    KD_RX_DECLARE(KdDbAttributeDefinition)
    KD_DB_MEMBERS(AttributeDefinitionMembers)

    const KdString& prompt() const { return data().prompt; }
    bool isMTextAttributeDefinition() const { return data().lines != nullptr; }
    /// The text of several lines that references begin with, or null; it belongs to the definition.
    const KdDbMText* getMTextAttributeDefinitionConst() const { return data().lines.get(); }
    /// The tag stands where the value of a reference is going to stand, unless that can't differ.
    const KdString& shownText() const override { return isConstant() ? textString() : tag(); }
};
