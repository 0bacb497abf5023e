#include "core/edit/HistoryView.h"

namespace orrery {
namespace {

std::string_view cellNameKey(PlanetKey key) {
    switch (key) {
    case PlanetKey::name:
        return "stepName";
    case PlanetKey::state:
        return "stepShown";
    case PlanetKey::styleindex:
        return "stepStyle";
    case PlanetKey::surfaceindex:
        return "stepSurface";
    case PlanetKey::xvalue:
        return "stepX";
    case PlanetKey::yvalue:
        return "stepY";
    case PlanetKey::zvalue:
        return "stepZ";
    case PlanetKey::radius:
        return "stepRadius";
    default:
        return "stepColor";
    }
}

} // namespace

std::string_view stepNameKey(const EditStep& step) {
    switch (step.kind) {
    case EditKind::cell:
        return cellNameKey(step.cell);
    case EditKind::drag:
        return "stepMove";
    case EditKind::create:
        return "stepCreate";
    case EditKind::remove:
        return "stepDelete";
    case EditKind::showAll:
        return "stepShowAll";
    case EditKind::camera:
        return "stepCamera";
    case EditKind::light:
        return "stepLight";
    case EditKind::background:
        return "stepBackground";
    case EditKind::size:
        return "stepSize";
    }
    return "stepName";
}

// The box is what the person clicked: it stood the other way before the step.
std::optional<bool> showAllBoxAfter(const EditStep& step, bool undone) {
    if (step.kind != EditKind::showAll || step.records.empty() || !step.records.front().after)
        return std::nullopt;
    const bool shown = isShown(*step.records.front().after);
    return undone ? !shown : shown;
}

} // namespace orrery
