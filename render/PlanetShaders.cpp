#include "render/PlanetShaders.h"

namespace orrery::render {
namespace {

std::string versionLine(int glslVersion) {
    return "#version " + std::to_string(glslVersion) + " core\n";
}

// Each planet is a square around the circle where the eye's tangent cone touches the
// sphere: the square holds the sphere's whole silhouette, and every point of the circle
// lies on the sphere, so no part of it is nearer than the sphere itself.
constexpr const char* kPlanetVertex = R"(
layout(location = 0) in vec4 centerRadius;
layout(location = 1) in vec4 diffuseColor;
layout(location = 2) in vec2 layers;

uniform mat4 projection;

flat out vec3 vCenter;
flat out float vRadius;
flat out vec4 vColor;
flat out vec2 vLayers;

void main() {
    vec3 center = centerRadius.xyz;
    float radius = centerRadius.w;
    vCenter = center;
    vRadius = radius;
    vColor = diffuseColor;
    vLayers = layers;
    float distance2 = dot(center, center);
    if (radius <= 0.0 || distance2 <= radius * radius) {
        // The eye is inside: the sphere's outside cannot be seen. Outside the clip volume.
        gl_Position = vec4(2.0, 2.0, 2.0, 1.0);
        return;
    }
    float distance = sqrt(distance2);
    vec3 axis = center / distance;
    float tangent = sqrt(distance2 - radius * radius);
    float along = tangent * tangent / distance;
    float spread = radius * tangent / distance * 1.02;
    vec3 helper = abs(axis.y) < 0.9 ? vec3(0.0, 1.0, 0.0) : vec3(1.0, 0.0, 0.0);
    vec3 right = normalize(cross(helper, axis));
    vec3 up = cross(axis, right);
    vec2 corner = vec2((gl_VertexID & 1) != 0 ? 1.0 : -1.0, (gl_VertexID & 2) != 0 ? 1.0 : -1.0);
    vec3 position = axis * along + (right * corner.x + up * corner.y) * spread;
    gl_Position = projection * vec4(position, 1.0);
}
)";

// Ray casting per fragment: exact silhouette, depth and normal of a true sphere.
constexpr const char* kPlanetFragment = R"(
const int kMaxSamples = 8;
const float kPi = 3.14159265358979;

uniform mat4 projection;
uniform vec4 viewport;       // x, y, width, height in pixels
uniform vec2 ndcToRay;
uniform int sampleCount;
uniform vec2 samplePositions[kMaxSamples];
uniform vec3 lightPosition;  // relative to the eye
uniform vec3 lightColor;     // linear
uniform sampler2D gradientRamps;
uniform float gradientRampCount;
uniform sampler2DArray surfaces;

flat in vec3 vCenter;
flat in float vRadius;
flat in vec4 vColor;
flat in vec2 vLayers;

layout(location = 0) out vec4 fragColor;

vec3 rayThrough(vec2 windowPosition) {
    vec2 ndc = (windowPosition - viewport.xy) / viewport.zw * 2.0 - 1.0;
    return normalize(vec3(ndc * ndcToRay, -1.0));
}

// Whether a ray from the eye meets the sphere. The miss vector (centre minus the ray's
// closest point) keeps precision for small spheres far away.
bool meets(vec3 direction) {
    float along = dot(direction, vCenter);
    vec3 miss = vCenter - along * direction;
    return along > 0.0 && dot(miss, miss) <= vRadius * vRadius;
}

vec3 srgbToLinear(vec3 c) {
    return mix(c / 12.92, pow((c + 0.055) / 1.055, vec3(2.4)), step(0.04045, c));
}

vec3 linearToSrgb(vec3 c) {
    return mix(c * 12.92, 1.055 * pow(c, vec3(1.0 / 2.4)) - 0.055, step(0.0031308, c));
}

void main() {
    // Shade where the pixel centre's ray meets the sphere; an edge pixel whose centre
    // misses is shaded at the nearest point of the rim.
    vec3 direction = rayThrough(gl_FragCoord.xy);
    float along = dot(direction, vCenter);
    vec3 miss = vCenter - along * direction;
    float inside = vRadius * vRadius - dot(miss, miss);
    vec3 normal = inside >= 0.0 ? (-miss - sqrt(inside) * direction) / vRadius
                                : normalize(-miss);
    vec3 surfacePoint = vCenter + normal * vRadius;

    vec4 clip = projection * vec4(surfacePoint, 1.0);
    gl_FragDepth = clamp(0.5 * clip.z / clip.w + 0.5, 0.0, 1.0);

    // Equirectangular coordinates: u around the equator (0.5 facing +z, growing towards
    // +x), v from the north pole (+y) down.
    float u = atan(normal.x, normal.z) / (2.0 * kPi) + 0.5;
    float v = acos(clamp(normal.y, -1.0, 1.0)) / kPi;
    // u jumps from 1 to 0 behind the sphere. A copy of u that jumps in front instead is
    // smooth there, so the smaller of the two slopes is the true one everywhere.
    float uShifted = fract(u + 0.5);
    vec2 slopeU = vec2(dFdx(u), dFdy(u));
    vec2 slopeShifted = vec2(dFdx(uShifted), dFdy(uShifted));
    if (max(abs(slopeShifted.x), abs(slopeShifted.y)) < max(abs(slopeU.x), abs(slopeU.y)))
        slopeU = slopeShifted;
    vec2 slopeV = vec2(dFdx(v), dFdy(v));

    vec4 diffuse = vec4(srgbToLinear(vColor.rgb), vColor.a);
    if (vLayers.x >= 0.0)
        diffuse = textureLod(gradientRamps, vec2(v, (vLayers.x + 0.5) / gradientRampCount), 0.0);
    vec3 emission = vec3(0.0);
    if (vLayers.y >= 0.0) {
        vec4 glow = textureGrad(surfaces, vec3(u, v, vLayers.y), vec2(slopeU.x, slopeV.x),
                                vec2(slopeU.y, slopeV.y));
        emission = glow.rgb * glow.a;
    }

    // One omnidirectional light, Lambert only: no attenuation, no ambient, no specular.
    vec3 toLight = lightPosition - surfacePoint;
    float lightDistance = length(toLight);
    float lambert = lightDistance > 0.0 ? max(dot(normal, toLight / lightDistance), 0.0) : 0.0;
    vec3 colour = diffuse.rgb * lightColor * lambert + emission;
    fragColor = vec4(linearToSrgb(clamp(colour, 0.0, 1.0)) * diffuse.a, diffuse.a);

#ifdef SAMPLE_MASK
    // Coverage per sample, so that multisampling smooths the silhouette as it would the
    // edge of real geometry.
    int mask = 0;
    vec2 pixelCorner = floor(gl_FragCoord.xy);
    for (int i = 0; i < sampleCount; ++i)
        if (meets(rayThrough(pixelCorner + samplePositions[i])))
            mask |= 1 << i;
    if (mask == 0)
        discard;
    gl_SampleMask[0] = mask;
#else
    if (!meets(direction))
        discard;
#endif
}
)";

constexpr const char* kComposeVertex = R"(
void main() {
    // One triangle that covers the whole target.
    vec2 corner = vec2((gl_VertexID & 1) != 0 ? 3.0 : -1.0, (gl_VertexID & 2) != 0 ? 3.0 : -1.0);
    gl_Position = vec4(corner, 0.0, 1.0);
}
)";

// Averages the samples (the resolve) and divides by alpha once, where the picture leaves
// the renderer: windows and files take straight alpha.
constexpr const char* kComposeFragment = R"(
uniform sampler2DMS canvas;
uniform int sampleCount;

layout(location = 0) out vec4 pictureColor;

void main() {
    ivec2 texel = ivec2(gl_FragCoord.xy);
    vec4 sum = vec4(0.0);
    for (int i = 0; i < sampleCount; ++i)
        sum += texelFetch(canvas, texel, i);
    vec4 premultiplied = sum / float(sampleCount);
    pictureColor = premultiplied.a > 0.0
                       ? vec4(min(premultiplied.rgb / premultiplied.a, vec3(1.0)), premultiplied.a)
                       : vec4(0.0);
}
)";

} // namespace

std::string planetVertexShader(int glslVersion) {
    return versionLine(glslVersion) + kPlanetVertex;
}

std::string planetFragmentShader(int glslVersion, bool sampleMask, bool sampleShadingExtension) {
    std::string source = versionLine(glslVersion);
    if (sampleMask && sampleShadingExtension)
        source += "#extension GL_ARB_sample_shading : require\n";
    if (sampleMask)
        source += "#define SAMPLE_MASK 1\n";
    return source + kPlanetFragment;
}

std::string composeVertexShader(int glslVersion) {
    return versionLine(glslVersion) + kComposeVertex;
}

std::string composeFragmentShader(int glslVersion) {
    return versionLine(glslVersion) + kComposeFragment;
}

} // namespace orrery::render
