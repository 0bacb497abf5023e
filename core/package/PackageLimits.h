#pragma once

#include <cstddef>
#include <cstdint>

// How much of a package the reader is willing to take in. A package can come from
// anyone, so every file is bounded before a byte of it is parsed, and the writer refuses
// to produce anything the reader would refuse.
namespace orrery {

struct ParseLimits {
    std::size_t maxBytes;
    // Nodes of the property-list tree once built: a shared object counts at every place
    // that refers to it, because that is how the parser materialises it.
    std::uint64_t maxNodes;
};

// No archive the original platform writes nests more than a handful of levels.
inline constexpr std::uint32_t kMaxNestingDepth = 512;

// "data1.xml": about 360,000 planets fit (some 46 nodes and 270 bytes each); reading
// that many takes about 1.8 GB, nearly all of it libplist's tree.
inline constexpr ParseLimits kPlanetArchiveLimits{128u << 20, 1u << 24};
// "data2.xml" (31 short texts) and "data3.xml" (five colours) are a few hundred bytes.
inline constexpr ParseLimits kSettingsListLimits{1u << 20, 1u << 16};
inline constexpr ParseLimits kLightColorArchiveLimits{1u << 20, 1u << 16};

} // namespace orrery
