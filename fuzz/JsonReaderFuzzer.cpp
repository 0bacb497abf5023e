// Feeds every input to the JSON reader of `orrery convert`. It must either give a document
// or refuse the text with a one-line reason. A document it gives is what convert writes as a
// package, so it must also come back unchanged through the package's encoders and decoders:
// convert never writes a package that opening refuses. Crashes, hangs, leaks and unbounded
// allocation are what the sanitizers and libFuzzer report.
#include "core/package/LightColorArchive.h"
#include "core/package/PackageJson.h"
#include "core/package/PlanetArchive.h"
#include "core/package/ProjectSettings.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

namespace {

void require(bool condition) {
    if (!condition)
        std::abort();
}

bool isOneLineReason(const std::string& error) {
    return !error.empty() && error.find('\n') == std::string::npos;
}

// Encoding may refuse a document too large for a package, with a reason; what it writes must
// read back as the same values.
void requireRoundTrip(const orrery::ProjectDocument& document) {
    std::string bytes;
    std::string error;
    const std::vector<std::string> list = orrery::projectSettingsList(document);
    if (!orrery::encodeProjectSettings(list, bytes, error)) {
        require(isOneLineReason(error));
    } else {
        std::array<std::string, orrery::setting::readCount> settings;
        require(orrery::decodeProjectSettings(bytes, settings, error));
        require(std::equal(settings.begin(), settings.end(), list.begin()));
    }

    orrery::Color color;
    require(orrery::decodeLightColorArchive(orrery::encodeLightColorArchive(document.lightColor),
                                            color, error));
    require(color == document.lightColor);

    error.clear();
    if (!orrery::encodePlanetArchive(document.planets, bytes, error)) {
        require(isOneLineReason(error));
        return;
    }
    std::vector<orrery::PlanetRecord> planets;
    require(orrery::decodePlanetArchive(bytes, planets, error));
    require(planets == document.planets);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string error;
    const std::optional<orrery::ProjectDocument> document =
        orrery::documentFromJsonText({reinterpret_cast<const char*>(data), size}, error);
    if (document)
        requireRoundTrip(*document);
    else
        require(isOneLineReason(error));
    return 0;
}
