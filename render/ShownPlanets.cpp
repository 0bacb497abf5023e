#include "render/ShownPlanets.h"

#include <algorithm>
#include <future>
#include <limits>
#include <thread>
#include <utility>

namespace orrery::render {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr PixelBox kEverywhere{-kInfinity, -kInfinity, kInfinity, kInfinity};
constexpr std::uint8_t kNotDrawn = 0;
// Passes over this many planets or more are planned in bands, on several threads, when the
// area has room for bands of at least kBandHeight rows.
constexpr std::size_t kPlannedApart = 4096;
constexpr int kBandHeight = 128;
constexpr std::size_t kMostBands = 4;

PixelBox reachOf(const PlanetInstance& planet, const ScreenFrame& frame) {
    const auto box = silhouetteBox(planet, frame);
    if (!box)
        return kEverywhere;
    return {box->left - kEdgeMargin, box->bottom - kEdgeMargin, box->right + kEdgeMargin,
            box->top + kEdgeMargin};
}

bool overlap(const PixelBox& a, const PixelBox& b) {
    return a.left < b.right && b.left < a.right && a.bottom < b.top && b.bottom < a.top;
}

std::uint8_t drawnAs(const PlanetDraw& draw) {
    return static_cast<std::uint8_t>(1 + static_cast<int>(draw.shape) * 2 +
                                     (draw.textured ? 1 : 0));
}

} // namespace

void ShownPlanets::changed(const PixelBox& area) {
    if (!changedArea_) {
        changedArea_ = area;
        return;
    }
    PixelBox& box = *changedArea_;
    box = {std::min(box.left, area.left), std::min(box.bottom, area.bottom),
           std::max(box.right, area.right), std::max(box.top, area.top)};
}

void ShownPlanets::beginRebuild(const SceneNode& root, Vec3 eye, const ScreenFrame& frame) {
    collection_.begin(root, eye);
    stage_ = Stage::collecting;
    spread_ = false;
    nextEye_ = eye;
    nextFrame_ = frame;
}

bool ShownPlanets::continueRebuild(const SurfaceLayerLookup& layerOf, std::size_t nodes) {
    // A scene taken in over several steps is put in order in a step of its own, and the
    // list made is drawn from the step after: no step does all the work.
    if (stage_ == Stage::collecting) {
        if (!collection_.step(layerOf, nodes)) {
            spread_ = true;
            return false;
        }
        stage_ = Stage::ordering;
        if (spread_)
            return false;
    }
    if (stage_ == Stage::ordering) {
        takeCollection();
        stage_ = Stage::made;
        if (spread_)
            return false;
    }
    return true;
}

void ShownPlanets::takeCollection() {
    collection_.finish(instances_, collected_);
    entries_.clear();
    std::size_t kept = 0;
    for (std::size_t i = 0; i < instances_.size(); ++i) {
        if (!showsOnScreen(instances_[i], nextFrame_))
            continue;
        instances_[kept++] = instances_[i];
        entries_.push_back({collected_[i], reachOf(instances_[i], nextFrame_), kNotDrawn});
    }
    instances_.resize(kept);
    eye_ = nextEye_;
    frame_ = nextFrame_;
    changedArea_ = kEverywhere;
}

bool ShownPlanets::patch(const SceneNode& root, const std::vector<SceneChange>& changes,
                         const SurfaceLayerLookup& layerOf) {
    // Each node once, as it stands now: its last entry reaches it if it still lives.
    std::vector<SceneChange> latest(changes.rbegin(), changes.rend());
    std::stable_sort(latest.begin(), latest.end(),
                     [](const SceneChange& a, const SceneChange& b) { return a.key < b.key; });
    latest.erase(
        std::unique(latest.begin(), latest.end(),
                    [](const SceneChange& a, const SceneChange& b) { return a.key == b.key; }),
        latest.end());

    // Everything that can fail comes first, so that a failure leaves the list untouched.
    std::vector<PlanetInstance> comers;
    std::vector<Entry> comerEntries;
    for (const SceneChange& change : latest) {
        const auto node = change.node.lock();
        if (!node || node->parent() != &root || node->isHidden() || !node->sphere() ||
            !(node->sphere()->radius > 0.0))
            continue;
        const auto instance =
            planetInstance(*node->sphere(), root.position() + node->position() - eye_, layerOf);
        if (!instance)
            return false;
        if (!showsOnScreen(*instance, frame_))
            continue;
        comers.push_back(*instance);
        comerEntries.push_back(
            {{change.key, node->siblingOrder(), 0}, reachOf(*instance, frame_), kNotDrawn});
    }
    for (const Entry& comer : comerEntries)
        changed(comer.reach);

    // The changed planets' old instances go, in one pass.
    const auto wasChanged = [&latest](const SceneNode* key) {
        return std::binary_search(
            latest.begin(), latest.end(), SceneChange{key, {}},
            [](const SceneChange& a, const SceneChange& b) { return a.key < b.key; });
    };
    std::size_t kept = 0;
    for (std::size_t i = 0; i < instances_.size(); ++i) {
        if (wasChanged(entries_[i].origin.node)) {
            changed(entries_[i].reach);
            continue;
        }
        instances_[kept] = instances_[i];
        entries_[kept++] = entries_[i];
    }

    // The new ones merge in from the back, each to its place in the order.
    std::vector<std::size_t> order(comers.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = i;
    std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return drawnBefore(comers[a], comerEntries[a].origin, comers[b], comerEntries[b].origin);
    });
    instances_.resize(kept + comers.size());
    entries_.resize(kept + comers.size());
    for (std::size_t to = instances_.size(), from = kept, next = order.size(); next > 0;) {
        const std::size_t comer = order[next - 1];
        --to;
        if (from > 0 && drawnBefore(comers[comer], comerEntries[comer].origin, instances_[from - 1],
                                    entries_[from - 1].origin)) {
            --from;
            instances_[to] = instances_[from];
            entries_[to] = entries_[from];
        } else {
            --next;
            instances_[to] = comers[comer];
            entries_[to] = comerEntries[comer];
        }
    }
    return true;
}

std::optional<PixelBox> ShownPlanets::takeChangedArea(const std::vector<PlanetDraw>& draws) {
    for (const PlanetDraw& draw : draws) {
        const std::uint8_t kind = drawnAs(draw);
        for (std::size_t i = draw.first; i < draw.first + draw.count; ++i) {
            if (entries_[i].drawnAs == kind)
                continue;
            entries_[i].drawnAs = kind;
            changed(entries_[i].reach);
        }
    }
    return std::exchange(changedArea_, std::nullopt);
}

void ShownPlanets::passOver(const PixelRect& area, const std::vector<PlanetDraw>& draws,
                            const DepthFrame& frame, const std::vector<bool>& opaqueRamps,
                            Pass& pass) {
    pass.instances.clear();
    pass.pixels.clear();
    pass.draws.clear();
    pass.bands.clear();
    pass.soft.reset();
    // Many planets, most of those listed, that paint the area only a few times over are drawn
    // as they are listed.
    const PixelBox box{static_cast<double>(area.x), static_cast<double>(area.y),
                       static_cast<double>(area.x + area.width),
                       static_cast<double>(area.y + area.height)};
    double painted = 0.0;
    std::size_t touching = 0;
    for (const Entry& entry : entries_) {
        const double covered = std::max(0.0, std::min(entry.reach.right, box.right) -
                                                 std::max(entry.reach.left, box.left)) *
                               std::max(0.0, std::min(entry.reach.top, box.top) -
                                                 std::max(entry.reach.bottom, box.bottom));
        painted += covered;
        touching += covered > 0.0 ? 1 : 0;
    }
    pass.asListed = touching >= kPlannedApart && 4 * touching >= 3 * instances_.size() &&
                    !cullingPays(painted, area);
    if (pass.asListed) {
        pass.draws = draws;
        pass.bands.emplace_back(area, draws.size());
        pass.soft = area; // where planets are many, their edges are everywhere
        return;
    }

    // A large pass over many planets is planned in bands of rows, one a core: each band's
    // planets, and so its plan, are its own.
    const bool split = instances_.size() >= kPlannedApart && area.height >= 2 * kBandHeight;
    const auto count =
        split ? std::clamp<std::size_t>(std::thread::hardware_concurrency(), 1, kMostBands) : 1;
    bands_.resize(count);
    for (std::size_t i = 0; i < count; ++i) {
        const int bottom = area.y + static_cast<int>(area.height * i / count);
        const int top = area.y + static_cast<int>(area.height * (i + 1) / count);
        bands_[i].area = {area.x, bottom, area.width, top - bottom};
    }
    std::vector<std::future<void>> others;
    for (std::size_t i = 1; i < count; ++i)
        others.push_back(std::async(std::launch::async,
                                    [&, i] { planBand(bands_[i], draws, frame, opaqueRamps); }));
    planBand(bands_[0], draws, frame, opaqueRamps);
    for (std::future<void>& other : others)
        other.get();

    // The bands share no pixel: each is drawn after the other.
    for (const Band& band : bands_) {
        appendBand(band, pass);
        pass.bands.emplace_back(band.area, pass.draws.size());
        pass.soft = unite(pass.soft, band.plan.soft);
    }
}

void ShownPlanets::planBand(Band& band, const std::vector<PlanetDraw>& draws,
                            const DepthFrame& frame, const std::vector<bool>& opaqueRamps) {
    const PixelBox box{static_cast<double>(band.area.x), static_cast<double>(band.area.y),
                       static_cast<double>(band.area.x + band.area.width),
                       static_cast<double>(band.area.y + band.area.height)};
    const auto opaque = [&opaqueRamps](const PlanetInstance& planet) {
        if (planet.color[3] != 1.0f)
            return false;
        if (planet.rampRow < 0.0f)
            return true;
        const auto row = static_cast<std::size_t>(planet.rampRow);
        return row < opaqueRamps.size() && opaqueRamps[row];
    };
    band.candidates.clear();
    band.candidateDraws.clear();
    for (const PlanetDraw& draw : draws) {
        for (std::size_t i = draw.first; i < draw.first + draw.count; ++i) {
            if (!overlap(entries_[i].reach, box))
                continue;
            band.candidates.push_back({&instances_[i], entries_[i].reach, opaque(instances_[i])});
            band.candidateDraws.push_back(&draw);
        }
    }
    assignPassRoles(band.candidates, frame, band.area, band.plan);
}

void ShownPlanets::appendBand(const Band& band, Pass& pass) {
    // Each piece of a planet is one instance of it, drawn over that piece.
    const auto append = [&](std::size_t candidate) {
        const PassPlanet& planet = band.plan.planets[candidate];
        const PlanetDraw& from = *band.candidateDraws[candidate];
        const std::size_t bandStart = pass.bands.empty() ? 0 : pass.bands.back().second;
        PlanetDraw* last = pass.draws.size() > bandStart ? &pass.draws.back() : nullptr;
        const bool sameKind = last != nullptr && last->shape == from.shape &&
                              last->textured == from.textured &&
                              last->alone == (planet.role == PassRole::alone);
        // A sprite in pieces is drawn as rectangles; so are the sprites after it in the same
        // draw, one piece each, rather than starting a draw of points for them.
        const bool inPieces = from.shape != PlanetShape::quad &&
                              (planet.pieceCount > 1 || (sameKind && last->inPieces));
        if (sameKind && last->inPieces == inPieces)
            last->count += planet.pieceCount;
        else
            pass.draws.push_back({pass.instances.size(), planet.pieceCount, from.textured,
                                  from.shape, planet.role == PassRole::alone, inPieces});
        for (std::size_t piece = planet.firstPiece; piece < planet.firstPiece + planet.pieceCount;
             ++piece) {
            const PixelRect& at = band.plan.pieces[piece];
            pass.instances.push_back(*band.candidates[candidate].planet);
            pass.pixels.push_back({static_cast<float>(at.x), static_cast<float>(at.y),
                                   static_cast<float>(at.x + at.width),
                                   static_cast<float>(at.y + at.height)});
        }
    };
    // Planets alone in the area may go in any order: one draw for each way of drawing.
    for (const PlanetShape shape :
         {PlanetShape::tinySprite, PlanetShape::sprite, PlanetShape::quad})
        for (const bool textured : {false, true})
            for (std::size_t i = 0; i < band.candidates.size(); ++i)
                if (band.plan.planets[i].role == PassRole::alone &&
                    band.candidateDraws[i]->shape == shape &&
                    band.candidateDraws[i]->textured == textured)
                    append(i);
    for (std::size_t i = 0; i < band.candidates.size(); ++i)
        if (band.plan.planets[i].role == PassRole::shared)
            append(i);
}

} // namespace orrery::render
