#pragma once

#include "core/package/ProjectDocument.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace orrery::test {

// A fresh folder under the temporary folder, removed with its content at the end.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

// A document of `planets` planets in which every value differs from planet to planet,
// names include non-ASCII text, colours fractions and alpha, and the reserved values are
// not "0".
ProjectDocument sampleDocument(std::size_t planets);

// A binary property list assembled from encoded objects with one-byte references and
// offsets, for structures that no writer produces (cycles, references out of range).
std::string rawBinaryPlist(const std::vector<std::string>& objects, std::uint8_t top = 0);
// An encoded array object holding one-byte references.
std::string rawArray(const std::vector<std::uint8_t>& refs);

std::string readWholeFile(const std::filesystem::path& path);

} // namespace orrery::test
