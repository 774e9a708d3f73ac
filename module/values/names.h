/// Names of colours, lineweights, linetypes and blocks.
#pragma once

#include <database/object_id.h>
#include <runtime/kd_string.h>

class KdDbBlockReference;
class KdDbEntity;
class ResBuf;

/// Status of the functions below, where they give one; success is `eOk`.
constexpr int kObjectNotUsable = 15;
constexpr int kNoDatabase = 124;

/// The index of a colour: 0 by block, 1 to 255, 256 by layer.
/// @param text  a colour word in English or in the language of the texts, whole or short, or a
///              number, without case; null counts as empty
/// @return      7 for an empty text and for a number whose low 16 bits exceed 256; 0 for a text
/// that
///              is neither a word nor a number
short Color2Number(const wchar_t* text);

/// The text of a lineweight in the units of "LWUNITS".
/// @param weight  1/100 mm, or -1, -2, -3 for "ByLayer", "ByBlock", "Default"
/// @return        0 always
int getLineWeightName(int weight, KdString& name);

/// The first linetype of the working drawing that comes from no external reference. Without one
/// `name` stays, which is a success; otherwise `kNoDatabase` or `kObjectNotUsable`.
int getDefaultLineTypeName(KdString& name);

/// The name of the block that a reference shows, as a text record. An anonymous copy of a block
/// answers with the name of its original.
/// @param result  a record of the caller's; becomes a text record, also where the block is not to
/// be
///                had, unless `entity` is no block reference
/// @return        0, or `kObjectNotUsable`
int getBlockReferenceName(KdDbEntity* entity, ResBuf*& result);

/// The block that a reference stands for: the original of an anonymous copy, otherwise the block
/// that it names.
KdDbObjectId sourceBlockOf(const KdDbBlockReference& reference);
