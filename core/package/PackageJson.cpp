#include "core/package/PackageJson.h"

#include "core/model/TextNumber.h"
#include "core/validate/Validators.h"

#include <array>
#include <charconv>
#include <string_view>

namespace orrery {
namespace {

using nlohmann::json;
using nlohmann::ordered_json;

// The package's own keys, in the order the JSON form lists them.
constexpr std::array<const char*, 7> kCameraKeys{"xfov", "yfov",         "x",     "y",
                                                 "z",    "orthographic", "zrange"};
constexpr std::array<const char*, 3> kLightKeys{"x", "y", "z"};
constexpr std::array<PlanetKey, 9> kPlanetTextKeys{
    PlanetKey::tsecs,      PlanetKey::name,         PlanetKey::state,
    PlanetKey::styleindex, PlanetKey::surfaceindex, PlanetKey::xvalue,
    PlanetKey::yvalue,     PlanetKey::zvalue,       PlanetKey::radius};
// The schema is three levels deep; anything much deeper is not a package.
constexpr int kMaxDepth = 8;

ordered_json colourJson(const Color& c) {
    return ordered_json::array({c.red, c.green, c.blue, c.alpha});
}

ordered_json planetJson(const PlanetRecord& planet) {
    ordered_json object = ordered_json::object();
    for (PlanetKey key : kPlanetTextKeys)
        object[std::string(keyName(key))] = *planet.text(key);
    object["color"] = colourJson(planet.color);
    return object;
}

ordered_json checksJson(const ProjectChecks& checks) {
    return {{"width", checks.width},
            {"height", checks.height},
            {"background", checks.background},
            {"camera", checks.camera},
            {"light", checks.lightFields}};
}

// Reading: each step names where it is, so that a refusal can say which value is wrong.
struct Refusal {
    std::string reason;
};

// A value as JSON writes it, in quotes and with control characters escaped, so that a
// refusal stays one line whatever the value holds.
std::string quoted(const std::string& value) {
    return json(value).dump(-1, ' ', false, json::error_handler_t::replace);
}

// "camera.x", "planets[2].radius"; a key of the root is named alone.
std::string nameOf(const std::string& where, const char* key) {
    return where.empty() ? std::string(key) : where + "." + key;
}

const json& member(const json& object, const char* key, const std::string& where) {
    const auto found = object.find(key);
    if (found == object.end())
        throw Refusal{(where.empty() ? std::string("the package") : where) + " has no \"" + key +
                      "\""};
    return *found;
}

const json& objectMember(const json& object, const char* key, const std::string& where) {
    const json& value = member(object, key, where);
    if (!value.is_object())
        throw Refusal{nameOf(where, key) + " must be an object"};
    return value;
}

std::string text(const json& object, const char* key, const std::string& where) {
    const json& value = member(object, key, where);
    if (!value.is_string())
        throw Refusal{nameOf(where, key) + " must be text"};
    return value.get<std::string>();
}

// The settings list is an XML property list, and XML cannot carry a NUL character: the
// text would come back cut short.
std::string settingText(const json& object, const char* key, const std::string& where) {
    std::string value = text(object, key, where);
    if (value.find('\0') != std::string::npos)
        throw Refusal{nameOf(where, key) + " holds a NUL character, which a package cannot store"};
    return value;
}

Color colour(const json& object, const char* key, const std::string& where) {
    const json& value = member(object, key, where);
    const std::string name = nameOf(where, key);
    if (!value.is_array() || value.size() != 4)
        throw Refusal{name + " must be a list of four numbers: red, green, blue, alpha"};
    std::array<double, 4> components{};
    for (std::size_t i = 0; i < 4; ++i) {
        if (!value[i].is_number() || value[i].get<double>() < 0.0 || value[i].get<double>() > 1.0)
            throw Refusal{name + " must hold numbers from 0 to 1"};
        components[i] = value[i].get<double>();
    }
    return {components[0], components[1], components[2], components[3]};
}

// The package keeps the light position as numbers written with "%f"; reading the text in
// double precision gives such a text back unchanged.
double lightCoordinate(const json& light, const char* key) {
    const std::string value = text(light, key, "light");
    if (!isNumber(value))
        throw Refusal{nameOf("light", key) + " must be a number, not " + quoted(value)};
    const std::string_view digits =
        value.front() == '+' ? std::string_view(value).substr(1) : value;
    double number = 0.0;
    if (std::from_chars(digits.data(), digits.data() + digits.size(), number).ec != std::errc())
        throw Refusal{nameOf("light", key) + " is out of range"};
    return number;
}

PlanetRecord planet(const json& value, const std::string& where) {
    if (!value.is_object())
        throw Refusal{where + " must be an object"};
    PlanetRecord record;
    for (PlanetKey key : kPlanetTextKeys)
        *record.text(key) = text(value, std::string(keyName(key)).c_str(), where);
    record.color = colour(value, "color", where);
    return record;
}

std::vector<PlanetRecord> planetList(const json& root) {
    const json& planets = member(root, "planets", "");
    if (!planets.is_array())
        throw Refusal{"planets must be a list"};
    std::vector<PlanetRecord> records;
    records.reserve(planets.size());
    for (std::size_t i = 0; i < planets.size(); ++i)
        records.push_back(planet(planets[i], "planets[" + std::to_string(i) + "]"));
    return records;
}

ProjectDocument document(const json& root) {
    ProjectDocument doc;
    const json& size = objectMember(root, "document", "");
    doc.documentWidth = settingText(size, "width", "document");
    doc.documentHeight = settingText(size, "height", "document");

    const std::string background = text(root, "background", "");
    if (!isInteger(background))
        throw Refusal{"background must be a whole number, not " + quoted(background)};
    doc.background = static_cast<long>(integerValue(background));

    const json& camera = objectMember(root, "camera", "");
    for (std::size_t i = 0; i < kCameraKeys.size(); ++i)
        doc.cameraSettings[i] = settingText(camera, kCameraKeys[i], "camera");

    const json& light = objectMember(root, "light", "");
    for (std::size_t i = 0; i < kLightKeys.size(); ++i)
        doc.lightPosition[i] = lightCoordinate(light, kLightKeys[i]);
    doc.lightColor = colour(light, "color", "light");

    doc.planets = planetList(root);
    return doc;
}

// nlohmann's messages start with "[json.exception.parse_error.101] parse error at ...".
std::string plainMessage(const std::string& message) {
    const std::size_t bracket = message.find("] ");
    return bracket == std::string::npos ? message : message.substr(bracket + 2);
}

// Parses the text with a bound on its depth and reads it with `read`, which throws a
// Refusal naming the value it cannot take.
template <typename Read>
auto readJsonText(std::string_view jsonText, std::string& error, Read read)
    -> std::optional<decltype(read(json()))> {
    bool tooDeep = false;
    const json::parser_callback_t limitDepth = [&tooDeep](int depth, json::parse_event_t, json&) {
        tooDeep = tooDeep || depth > kMaxDepth;
        return !tooDeep;
    };
    json root;
    try {
        root = json::parse(jsonText.begin(), jsonText.end(), limitDepth);
    } catch (const json::exception& e) {
        // A parse error, or a number beyond the range of a double ("1e400"), which the
        // parser reports as out of range.
        error = "not valid JSON: " + plainMessage(e.what());
        return std::nullopt;
    }
    if (tooDeep) {
        error = "the JSON is nested too deeply for a package";
        return std::nullopt;
    }
    try {
        if (!root.is_object())
            throw Refusal{"the package must be a JSON object"};
        return read(root);
    } catch (const Refusal& refusal) {
        error = refusal.reason;
        return std::nullopt;
    }
}

} // namespace

ordered_json packageJson(const OpenedProject& project, bool withChecks) {
    const auto& s = project.settings;
    ordered_json root = ordered_json::object();
    root["document"] = {{"width", s[setting::width]}, {"height", s[setting::height]}};
    root["background"] = s[setting::background];
    ordered_json camera = ordered_json::object();
    for (std::size_t i = 0; i < kCameraKeys.size(); ++i)
        camera[kCameraKeys[i]] = s[setting::cameraXFov + i];
    root["camera"] = camera;
    ordered_json light = ordered_json::object();
    for (std::size_t i = 0; i < kLightKeys.size(); ++i)
        light[kLightKeys[i]] = s[setting::lightX + i];
    light["color"] = colourJson(project.lightColor);
    root["light"] = light;
    root["planets"] = planetsJson(project.planets)["planets"];
    if (withChecks)
        root["checks"] = checksJson(project.checks);
    return root;
}

std::optional<ProjectDocument> documentFromJsonText(std::string_view jsonText, std::string& error) {
    return readJsonText(jsonText, error, document);
}

ordered_json planetsJson(const std::vector<PlanetRecord>& planets) {
    ordered_json list = ordered_json::array();
    for (const PlanetRecord& record : planets)
        list.push_back(planetJson(record));
    return {{"planets", std::move(list)}};
}

std::optional<std::vector<PlanetRecord>> planetsFromJsonText(std::string_view text,
                                                             std::string& error) {
    return readJsonText(text, error, planetList);
}

} // namespace orrery
