// Feeds every input to the three decoders of a package's files. Each must either read it
// or refuse it with a message; crashes, hangs, leaks and unbounded allocation are what
// the sanitizers and libFuzzer report.
#include "core/package/LightColorArchive.h"
#include "core/package/PlanetArchive.h"
#include "core/package/ProjectSettings.h"

#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

void expectMessageOnFailure(bool read, const std::string& error) {
    if (!read && error.empty())
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    std::string error;

    std::array<std::string, orrery::setting::readCount> settings;
    expectMessageOnFailure(orrery::decodeProjectSettings(bytes, settings, error), error);

    error.clear();
    orrery::Color color;
    expectMessageOnFailure(orrery::decodeLightColorArchive(bytes, color, error), error);

    error.clear();
    std::vector<orrery::PlanetRecord> planets;
    expectMessageOnFailure(orrery::decodePlanetArchive(bytes, planets, error), error);
    return 0;
}
