/// Selecting what is like something that is selected already.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <common/run_request.h>
#include <kwdraw/panels/property_merge.h>

/// The run over the whole space that selects what has the same value.
/// @param type      null: entities of all types
/// @param property  what the selected entities have in common
/// @param axis      1 X, 2 Y, 3 Z for one coordinate of a point, otherwise 0
/// @return          none for a value that no run can compare with: one that varies, several
///                  points, or a whole point
std::optional<RunRequest> similarRequest(const MergedType* type, const MergedProperty& property,
                                         int axis);

/// True for the properties that entities of every type have.
bool isGeneral(const MergedProperty& property);

/// The filter of a request as kwselect takes it, in words that need no drawing to be understood.
std::wstring filterText(const RunRequest& request);

/// Carries out a run; the module prints its count line. False: `problem` is a sentence.
bool carryOut(const Module& module, const RunRequest& request, std::string& problem);

/// Selects what is of the same type and on the same layer as one of the entities: this is what
/// "similar" means where no property is named. False: `problem` is a sentence.
bool selectSimilar(const Module& module, const std::vector<KdDbObjectId>& entities,
                   std::string& problem);
