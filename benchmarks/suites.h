// The groups of benchmarks. Each function registers its group for the sample drawing of one size.
#pragma once

class Module;

/// The least that any reader of a drawing has to do.
void registerBaselines(long entities);

/// Reading a drawing, with and without the members of its entities.
void registerLoading(long entities);

/// Reading the members of one kind of entity after the other, and writing a selection.
void registerKinds(long entities);

/// Reading and searching drawings of another kind, in which no layer, block or text stands twice.
/// Only the sizes of `kDistinctSizes` have such drawings.
void registerDistinctLoading(long entities);
void registerDistinct(const Module& module, long entities);

/// Gathering, matching and whole runs, through the module as a host calls it.
/// @param module  loaded; must live until the benchmarks have run
void registerQuickSelect(const Module& module, long entities);
