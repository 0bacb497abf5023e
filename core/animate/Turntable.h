#pragma once

#include "core/animate/AnimationOptions.h"
#include "core/scene/SceneView.h"
#include "core/scene/Vec3.h"

#include <vector>

// The turn of a turntable animation: over one loop of N frames every planet turns a whole
// number of times about its own north-south axis (its surface moves west to east under the
// light), and the light may circle the scene once, so that frame N would be frame 0 again
// and the loop joins without a seam. Every frame is computed from its number alone, so the
// same frame is the same picture whichever run draws it.
namespace orrery {

// How many turns a planet of `radius` makes in a loop. All the same: one. By size: the
// largest planet turns once and a smaller one about as many times more as it is smaller,
// at most once every eight frames (so that no surface jumps more than 45 degrees a frame).
int turnsPerLoop(SpinMode spin, double radius, double largestRadius, int frames);

// The share of a whole turn (0 up to 1) a planet making `turns` turns a loop has made at
// `frame` (0 to frames - 1).
double surfaceTurn(int turns, int frame, int frames);

// The light's position at `frame` when it circles the scene: turned about the vertical
// axis through `centre`, once a loop, west to east like the planets, from where it stands.
Vec3 orbitingLight(Vec3 light, Vec3 centre, int frame, int frames);

// The turntable of one scene view: remembers where the light stands and the planets' sizes,
// and sets the view to any frame of the loop.
class Turntable {
public:
    Turntable(SceneView& view, const AnimationOptions& options);
    // Turns every planet (and moves the light) to frame 0 to frames - 1.
    void showFrame(int frame);
    // Puts the view back as it was before the first frame.
    void restore();

private:
    SceneView& view_;
    int frames_;
    SpinMode spin_;
    bool lightOrbit_;
    LightState light_;
    Vec3 centre_;
    double largestRadius_ = 0.0;
};

} // namespace orrery
