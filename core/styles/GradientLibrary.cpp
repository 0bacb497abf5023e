#include "core/styles/GradientLibrary.h"

#include "core/model/TextNumber.h"
#include "core/styles/GradientCatalogue.h"

#include <string>

namespace orrery {

std::optional<Gradient> gradientFromStops(const std::vector<GradientStopText>& stops) {
    if (stops.empty())
        return std::nullopt;
    // The divisions run in single precision and the locations pass through a float, so a
    // colour or a position read back from a stored gradient matches to the last bit.
    const auto fraction = [](const std::string& text, float whole) {
        return static_cast<double>(static_cast<float>(integerValue(text)) / whole);
    };
    Gradient gradient;
    gradient.stops.reserve(stops.size());
    for (const GradientStopText& stop : stops) {
        gradient.stops.push_back({fraction(stop.red, 255.0f), fraction(stop.green, 255.0f),
                                  fraction(stop.blue, 255.0f), fraction(stop.alpha, 100.0f),
                                  static_cast<double>(floatValue(stop.position))});
    }
    return gradient;
}

std::vector<GradientStopText> gradientLibrary::stopsOf(std::int64_t number) {
    std::vector<GradientStopText> stops;
    const catalogue::Row* row = catalogue::row(number);
    if (row == nullptr)
        return stops;
    stops.reserve(row->count);
    for (std::size_t i = 0; i < row->count; ++i) {
        const catalogue::Stop& stop = row->stops[i];
        stops.push_back({std::to_string(stop.red), std::to_string(stop.green),
                         std::to_string(stop.blue), "100", stop.position});
    }
    return stops;
}

std::optional<Gradient> gradientLibrary::getGradient(std::int64_t number) const {
    return gradientFromStops(stopsOf(number));
}

} // namespace orrery
