#include "core/package/PlanetArchive.h"

#include "core/package/KeyedArchive.h"
#include "core/package/KeyedArchiveWriter.h"

#include <array>
#include <utility>

namespace orrery {
namespace {

// The keys a stored record is read from; "value1" to "value5" are left out on purpose.
constexpr std::array<PlanetKey, 10> kReadKeys{
    PlanetKey::tsecs,        PlanetKey::name,   PlanetKey::state,  PlanetKey::styleindex,
    PlanetKey::surfaceindex, PlanetKey::xvalue, PlanetKey::yvalue, PlanetKey::zvalue,
    PlanetKey::radius,       PlanetKey::color};

// Reads the record in `entry`; the message says what is wrong with it.
bool readRecord(const KeyedArchive& archive, std::uint32_t entry, PlanetRecord& record,
                std::string& problem) {
    const auto* dictionary = std::get_if<ArchivedDictionary>(&archive.object(entry));
    if (dictionary == nullptr) {
        problem = "is not a dictionary";
        return false;
    }
    for (PlanetKey key : kReadKeys) {
        const std::string name(keyName(key));
        const auto value = archive.find(*dictionary, name);
        if (!value) {
            problem = "has no \"" + name + "\"";
            return false;
        }
        const ArchivedObject& object = archive.object(*value);
        if (key == PlanetKey::color) {
            const auto* color = std::get_if<Color>(&object);
            if (color == nullptr) {
                problem = "has a \"color\" that is not a colour";
                return false;
            }
            record.color = *color;
        } else {
            const auto* text = std::get_if<std::string_view>(&object);
            if (text == nullptr) {
                problem = "has a \"" + name + "\" that is not text";
                return false;
            }
            *record.text(key) = *text;
        }
    }
    return true;
}

} // namespace

bool encodePlanetArchive(const std::vector<PlanetRecord>& planets, std::string& bytes,
                         std::string& error) {
    KeyedArchiveWriter writer;
    std::array<KeyedArchiveWriter::Entry, kPlanetKeyCount> keys{};
    for (std::size_t i = 0; i < kPlanetKeyCount; ++i)
        keys[i] = writer.text(kPlanetKeyNames[i]);
    std::vector<KeyedArchiveWriter::Entry> records;
    records.reserve(planets.size());
    std::array<std::pair<KeyedArchiveWriter::Entry, KeyedArchiveWriter::Entry>, kPlanetKeyCount>
        fields{};
    for (const PlanetRecord& planet : planets) {
        for (std::size_t i = 0; i < kPlanetKeyCount; ++i) {
            const auto key = static_cast<PlanetKey>(i);
            const std::string* text = planet.text(key);
            fields[i] = {keys[i], text ? writer.text(*text) : writer.color(planet.color)};
        }
        records.push_back(writer.dictionary(fields));
    }
    const auto root = writer.array(records, KeyedArchiveWriter::ArrayClass::mutableArray);
    if (!writer.finish(root, kPlanetArchiveLimits, bytes, error)) {
        error = "the planet list is too large for a package: " + error;
        return false;
    }
    return true;
}

bool decodePlanetArchive(const std::string& bytes, std::vector<PlanetRecord>& planets,
                         std::string& error) {
    const auto archive = KeyedArchive::read(bytes, kPlanetArchiveLimits, error);
    if (!archive)
        return false;
    const auto* list = std::get_if<ArchivedArray>(&archive->object(archive->root()));
    if (list == nullptr) {
        error = "the archive does not hold a list of planets";
        return false;
    }
    std::vector<PlanetRecord> records(list->items.size());
    for (std::size_t i = 0; i < records.size(); ++i) {
        std::string problem;
        if (!readRecord(*archive, list->items[i], records[i], problem)) {
            error = "planet record " + std::to_string(i + 1) + " " + problem;
            return false;
        }
    }
    planets = std::move(records);
    return true;
}

} // namespace orrery
