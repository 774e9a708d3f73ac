/// The arrowheads of dimensions and leaders: their keys in drawings and the texts shown for them.
#pragma once

#include <array>

#include <runtime/kd_string.h>

struct ArrowName
{
    int id;       ///< of the text shown, among the module's texts
    KdString key; ///< compared without case
};

/// All arrowheads, in the order in which value lists show them.
extern const std::array<ArrowName, 20> ArrowNameTable;

/// Replaces the key of an arrowhead by its text; an empty key stands for the first arrowhead. A
/// text that is itself the key of a later row is replaced again. A key of no row stays.
void getArrowName(KdString& key);
