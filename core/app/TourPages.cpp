#include "core/app/TourPages.h"

#include <array>

namespace orrery {
namespace {

constexpr std::array<TourPage, kTourPageCount> kPages{{
    {"01_intro", "introductionDescript1", true},
    {"02_plottingPlanet", "introductionDescript2", false},
    {"03_3axes", "introductionDescript3", false},
    {"04_docsize", "introductionDescript4", false},
    {"05_moveplanet", "introductionDescript5", false},
    {"06_surface", "introductionDescript6", false},
    {"07_style", "introductionDescript7", false},
    {"08_camera", "introductionDescript8", false},
    {"09_sun", "introductionDescript9", false},
    {"10_export", "introductionDescript10", false},
    {"11_progress", "introductionDescript11", false},
    {"12_help", "introductionDescript12", true},
}};

} // namespace

const TourPage& tourPage(int page) {
    return page >= 1 && page <= kTourPageCount ? kPages[static_cast<std::size_t>(page - 1)]
                                               : kPages.front();
}

std::optional<TourTurn> tourForward(int current) {
    if (current < 1 || current >= kTourPageCount)
        return std::nullopt;
    if (current == 1)
        return TourTurn{2, TourButtons::bothOn};
    if (current == kTourPageCount - 1)
        return TourTurn{kTourPageCount, TourButtons::forwardOffBackOn};
    return TourTurn{current + 1, TourButtons::unchanged};
}

std::optional<TourTurn> tourBack(int current) {
    if (current <= 1 || current > kTourPageCount)
        return std::nullopt;
    if (current == 2)
        return TourTurn{1, TourButtons::backOffForwardOn};
    if (current >= 9)
        return TourTurn{current - 1, TourButtons::bothOn};
    return TourTurn{current - 1, TourButtons::unchanged};
}

} // namespace orrery
