/// What lives as long as the module and belongs to no class.
#pragma once

#include <string>
#include <vector>

#include <database/color.h>

/// The custom colours of the dialog's colour list, kept between runs.
KW_EXPORT extern std::vector<KdCmColor> gComboValues;

/// The layer that lists of layers leave out.
extern const std::wstring ConstraintsLayerName;

/// True while the dialog gathers the values of a type for its lists. Providers then leave out what
/// takes long to measure.
extern bool g_bIsIni3DSolidProp;
