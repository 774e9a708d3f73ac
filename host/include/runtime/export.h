#pragma once

/// Marks what a shared library shows to others; everything else stays hidden.
#define KW_EXPORT __attribute__((visibility("default")))
