// The groups of benchmarks. Each function registers its group for the sample drawing of one size.
#pragma once

class Module;

/// The least that any reader of a drawing has to do.
void registerBaselines(long entities);

/// Reading a drawing, with and without the members of its entities.
void registerLoading(long entities);

/// Gathering, matching and whole runs, through the module as a host calls it.
/// @param module  loaded; must live until the benchmarks have run
void registerQuickSelect(const Module& module, long entities);
