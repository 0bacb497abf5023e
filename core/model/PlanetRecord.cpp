#include "core/model/PlanetRecord.h"

#include <utility>

namespace orrery {

std::string_view keyName(PlanetKey key) {
    return kPlanetKeyNames[static_cast<std::size_t>(key)];
}

std::optional<PlanetKey> planetKeyNamed(std::string_view name) {
    for (std::size_t i = 0; i < kPlanetKeyNames.size(); ++i)
        if (kPlanetKeyNames[i] == name)
            return static_cast<PlanetKey>(i);
    return std::nullopt;
}

const std::string* PlanetRecord::text(PlanetKey key) const {
    switch (key) {
    case PlanetKey::tsecs:
        return &tsecs;
    case PlanetKey::name:
        return &name;
    case PlanetKey::state:
        return &state;
    case PlanetKey::styleindex:
        return &styleindex;
    case PlanetKey::surfaceindex:
        return &surfaceindex;
    case PlanetKey::xvalue:
        return &xvalue;
    case PlanetKey::yvalue:
        return &yvalue;
    case PlanetKey::zvalue:
        return &zvalue;
    case PlanetKey::radius:
        return &radius;
    case PlanetKey::color:
        return nullptr;
    case PlanetKey::value1:
        return &reserved[0];
    case PlanetKey::value2:
        return &reserved[1];
    case PlanetKey::value3:
        return &reserved[2];
    case PlanetKey::value4:
        return &reserved[3];
    case PlanetKey::value5:
        return &reserved[4];
    }
    return nullptr;
}

std::string* PlanetRecord::text(PlanetKey key) {
    return const_cast<std::string*>(std::as_const(*this).text(key));
}

bool isShown(const PlanetRecord& record) {
    return record.state == "1";
}

PlanetRecord newPlanetRecord(std::string tsecs, std::string name) {
    PlanetRecord record;
    record.tsecs = std::move(tsecs);
    record.name = std::move(name);
    return record;
}

namespace {
PlanetRecord withReservedCleared(PlanetRecord record) {
    record.reserved = {"0", "0", "0", "0", "0"};
    return record;
}
} // namespace

PlanetRecord rebuilt(const PlanetRecord& record, PlanetKey key, std::string value) {
    PlanetRecord result = record;
    if (std::string* field = result.text(key))
        *field = std::move(value);
    return withReservedCleared(std::move(result));
}

PlanetRecord rebuiltWithColor(const PlanetRecord& record, Color color) {
    PlanetRecord result = withReservedCleared(record);
    result.color = color;
    return result;
}

PlanetRecord rebuiltWithPosition(const PlanetRecord& record, std::string x, std::string y,
                                 std::string z) {
    PlanetRecord result = withReservedCleared(record);
    result.xvalue = std::move(x);
    result.yvalue = std::move(y);
    result.zvalue = std::move(z);
    return result;
}

} // namespace orrery
