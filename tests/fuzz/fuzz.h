// What the fuzz targets have in common.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <vector>

// The targets; each is called with one input after the other.
void FuzzLanguageFile(const std::uint8_t* data, std::size_t size);
void FuzzPrefs(const std::uint8_t* data, std::size_t size);
void FuzzProfiles(const std::uint8_t* data, std::size_t size);
void FuzzRegFile(const std::uint8_t* data, std::size_t size);

/// Ends the run with the present input as the culprit.
inline void Require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}
