#include "core/scene/HitTest.h"

#include <algorithm>
#include <cmath>

namespace orrery {
namespace {

struct Ray {
    Vec3 origin;
    Vec3 direction; // unit length
};

// Distance along the ray to where it enters the sphere, or a negative value for a miss.
double entryDistance(const Ray& ray, Vec3 center, double radius) {
    const Vec3 toCenter = center - ray.origin;
    const double along = dot(toCenter, ray.direction);
    const double discriminant = along * along - (dot(toCenter, toCenter) - radius * radius);
    if (discriminant < 0.0)
        return -1.0;
    return along - std::sqrt(discriminant);
}

void collectHits(const SceneNode& node, Vec3 origin, const Ray& ray, std::vector<HitResult>& hits) {
    for (const auto& child : node.children()) {
        if (child->isHidden())
            continue;
        const Vec3 world = origin + child->position();
        const auto& sphere = child->sphere();
        if (sphere && sphere->radius > 0.0) {
            const double distance = entryDistance(ray, world, sphere->radius);
            if (distance > 0.0) {
                const Vec3 point = ray.origin + ray.direction * distance;
                hits.push_back({child, point - world, point, distance});
            }
        }
        if (child->childCount() > 0)
            collectHits(*child, world, ray, hits);
    }
}

} // namespace

std::vector<HitResult> hitTest(const SceneNode& root, const CameraProjection& camera, double viewX,
                               double viewY) {
    const Vec3 direction = camera.rayDirection(viewX, viewY);
    const Ray ray{camera.eye(), direction * (1.0 / length(direction))};
    std::vector<HitResult> hits;
    collectHits(root, root.position(), ray, hits);
    std::stable_sort(hits.begin(), hits.end(), [](const HitResult& a, const HitResult& b) {
        return a.distance < b.distance;
    });
    return hits;
}

} // namespace orrery
