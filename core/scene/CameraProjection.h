#pragma once

#include "core/scene/Vec3.h"

#include <array>

namespace orrery {

// The distances from the eye, along the view direction, of the near and far planes.
struct DepthRange {
    double zNear = 1.0;
    double zFar = 100.0;

    friend bool operator==(const DepthRange&, const DepthRange&) = default;
};

// The perspective through which the scene is seen: an eye that looks along -z (the
// camera is only ever moved, never turned), a vertical field of view, and a view of
// width x height in which x runs right and y up from the bottom-left corner.
// Depth is 0 on the near plane and 1 on the far plane, as in an OpenGL depth buffer.
class CameraProjection {
public:
    CameraProjection(Vec3 eye, double yFovDegrees, double viewWidth, double viewHeight,
                     DepthRange range);

    Vec3 eye() const { return eye_; }

    // Scene point to (view x, view y, depth).
    Vec3 project(Vec3 scenePoint) const;
    // (view x, view y, depth) back to the scene point.
    Vec3 unproject(Vec3 viewPoint) const;
    // The direction, not normalised, from the eye through a view point; its z is -1.
    Vec3 rayDirection(double viewX, double viewY) const;

    // Column-major OpenGL projection matrix for eye-relative scene coordinates.
    std::array<double, 16> matrix() const;
    // rayDirection's x and y per unit of normalised device coordinates.
    double ndcToRayX() const { return aspect_ / focal_; }
    double ndcToRayY() const { return 1.0 / focal_; }

private:
    Vec3 eye_;
    double width_;
    double height_;
    double aspect_;
    double focal_;  // 1 / tan(yFov / 2)
    double depthA_; // clip z = depthA_ * eyeZ + depthB_, clip w = -eyeZ
    double depthB_;
};

} // namespace orrery
