#include "core/scene/CameraProjection.h"

#include <cmath>
#include <numbers>

namespace orrery {

CameraProjection::CameraProjection(Vec3 eye, double yFovDegrees, double viewWidth,
                                   double viewHeight, DepthRange range)
    : eye_(eye), width_(viewWidth > 0.0 ? viewWidth : 1.0),
      height_(viewHeight > 0.0 ? viewHeight : 1.0), aspect_(width_ / height_),
      focal_(1.0 / std::tan(yFovDegrees * std::numbers::pi / 360.0)),
      depthA_((range.zFar + range.zNear) / (range.zNear - range.zFar)),
      depthB_(2.0 * range.zFar * range.zNear / (range.zNear - range.zFar)) {}

Vec3 CameraProjection::project(Vec3 scenePoint) const {
    const Vec3 v = scenePoint - eye_;
    const double w = -v.z;
    const double ndcX = focal_ / aspect_ * v.x / w;
    const double ndcY = focal_ * v.y / w;
    const double ndcZ = (depthA_ * v.z + depthB_) / w;
    return {(ndcX + 1.0) * 0.5 * width_, (ndcY + 1.0) * 0.5 * height_, (ndcZ + 1.0) * 0.5};
}

Vec3 CameraProjection::unproject(Vec3 viewPoint) const {
    const double ndcZ = viewPoint.z * 2.0 - 1.0;
    // ndcZ = -depthA - depthB / eyeZ, solved for the eye-space z.
    const double eyeZ = -depthB_ / (ndcZ + depthA_);
    const Vec3 direction = rayDirection(viewPoint.x, viewPoint.y);
    return eye_ + direction * -eyeZ;
}

Vec3 CameraProjection::rayDirection(double viewX, double viewY) const {
    const double ndcX = viewX / width_ * 2.0 - 1.0;
    const double ndcY = viewY / height_ * 2.0 - 1.0;
    return {ndcX * ndcToRayX(), ndcY * ndcToRayY(), -1.0};
}

std::array<double, 16> CameraProjection::matrix() const {
    std::array<double, 16> m{};
    m[0] = focal_ / aspect_;
    m[5] = focal_;
    m[10] = depthA_;
    m[11] = -1.0;
    m[14] = depthB_;
    return m;
}

} // namespace orrery
