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

// A package's archives nest a handful of levels (list, record, colour, class); anything
// near this limit is no package.
inline constexpr std::uint32_t kMaxNestingDepth = 512;

// "data1.xml": about 360,000 planets fit (some 46 nodes and 270 bytes each). A binary list
// is read in place, so reading them takes the file and about 750 bytes a planet more (the
// object table and the records), some 350 MB.
inline constexpr ParseLimits kPlanetArchiveLimits{128u << 20, 1u << 24};
// "data2.xml" (31 short texts) and "data3.xml" (five colours) are a few hundred bytes.
inline constexpr ParseLimits kSettingsListLimits{1u << 20, 1u << 16};
inline constexpr ParseLimits kLightColorArchiveLimits{1u << 20, 1u << 16};

} // namespace orrery
