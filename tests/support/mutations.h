/// Drawings with faults put into them at random places; the same ones for the same seed.
#pragma once

#include <cstdint>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

using Random = std::mt19937;

/// A drawing, in text or binary form, with one to five faults: groups dropped, doubled, swapped or
/// changed, lines dropped; bytes changed.
std::string mutatedDrawing(const std::string& content, Random& random);

/// Its beginning, up to any byte.
std::string cutDrawing(const std::string& content, Random& random);

/// The drawings of the tree and, where it is there, of the test collection beside it, sorted.
std::vector<std::filesystem::path> sampleDrawings();

/// How many faulty copies of a drawing of that size a test can afford: all of them together have
/// about `bytes`, but there is one at the least, and no more than `most`.
int affordableCopies(std::uintmax_t size, std::uintmax_t bytes, int most);

std::string contentOfFile(const std::filesystem::path& path);

/// A name of a drawing for a parameterised test, of letters, digits and `_`.
std::string testNameOf(const std::filesystem::path& path);
