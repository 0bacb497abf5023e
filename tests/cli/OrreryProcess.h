#pragma once

#include "core/package/ProjectDocument.h"

#include <filesystem>
#include <string>
#include <vector>

namespace orrery::testing {

// What a run of the `orrery` executable gave back.
struct Outcome {
    int status = -1;
    std::string out;
    std::string err;

    // Failures are one line each; a run that fails once prints exactly one.
    int errLines() const;
};

Outcome runOrrery(const std::vector<std::string>& arguments);

// A small valid system: 640 x 360, the given background, one shown planet in the middle
// of the picture and one hidden one.
ProjectDocument sampleDocument(long background);

// A whole file's bytes; empty when it cannot be read.
std::string fileText(const std::filesystem::path& path);

// Writes the document as a package and fails the test when that is impossible.
void writePackage(const std::string& path, const ProjectDocument& document);

} // namespace orrery::testing
