#include "render/PlanetShaders.h"

#include "render/GradientRamps.h"
#include "render/PlanetDraws.h"

namespace orrery::render {

// Each planet covers the square where its silhouette lies, widened by kEdgeMargin so that
// the soft outer edge is drawn too, within the box of pixels the pass must draw it at
// (the rest of it is hidden, or off the picture). As a point sprite (SPRITE), the square
// holds the part of the silhouette's bounding box within that box: OpenGL drops a point whose
// centre lies off screen, so the square's centre is kept on screen. As a quad, the square
// stands around the circle where the eye's tangent cone touches the sphere, and is cut to the
// box: it holds the whole silhouette, and every point of the circle lies on the sphere, so no
// part of it is nearer than the sphere itself. (An octagon would spare a few pixels, but
// software rasterisers pay more for the extra triangles than they save.)
constexpr const char* kPlanetVertexShader = R"(
layout(location = 0) in vec4 centerRadius;
layout(location = 1) in vec4 diffuseColor;
layout(location = 2) in vec3 layers; // gradient row, surface layer, surface turn
layout(location = 3) in vec4 drawnPixels; // the box of pixels to draw: left, bottom, right, top

uniform mat4 projection;
uniform float pixelAngle; // radians per pixel in the middle of the view
uniform vec4 viewport;    // x, y, width, height in pixels
uniform vec4 tile;        // the part of the picture drawn: x, y, width, height in its pixels
uniform vec2 ndcToRay;

flat out vec3 vCenter;
flat out float vRadius;
flat out vec4 vColor;
flat out vec3 vLayers;

#ifdef SPRITE
uniform float surfaceWidth; // texels of the surface layers' largest level

flat out float vLevel;

// The silhouette's extent along one screen axis, as ray slopes: the two planes through the
// eye that hold the other screen axis and touch the sphere.
vec2 extent(float along, float depth, float radius) {
    float a = depth * depth - radius * radius;
    float s = radius * sqrt(along * along + a);
    return vec2(along * depth - s, along * depth + s) / a;
}
#endif

void main() {
    vec3 center = centerRadius.xyz;
    float radius = centerRadius.w;
    vCenter = center;
    vRadius = radius;
    vColor = diffuseColor;
    vLayers = layers;
#ifdef SPRITE
    // Only planets in front of the eye, their box of a sprite's size, come here.
    vec2 xs = extent(center.x, -center.z, radius) / ndcToRay.x;
    vec2 ys = extent(center.y, -center.z, radius) / ndcToRay.y;
    vec2 boxLow = (vec2(xs.x, ys.x) * 0.5 + 0.5) * viewport.zw;
    vec2 boxHigh = (vec2(xs.y, ys.y) * 0.5 + 0.5) * viewport.zw;
    // The surface level whose texels are pixel sized in the middle of the planet, where a
    // layer's width spans 2 pi radians.
    vec2 box = boxHigh - boxLow;
    float texelsPerPixel = surfaceWidth / (3.14159265 * max(max(box.x, box.y), 1e-6));
    vLevel = clamp(round(log2(max(texelsPerPixel, 1.0))), 0.0, log2(max(surfaceWidth, 1.0)));
#ifdef PIECES
    // One rectangle, the piece of the picture to draw: it holds no pixel the planet's square
    // would not, but for ones beside the silhouette, which the fragment shader leaves alone.
    vec2 corner = vec2((gl_VertexID & 1) != 0 ? drawnPixels.z : drawnPixels.x,
                       (gl_VertexID & 2) != 0 ? drawnPixels.w : drawnPixels.y);
    gl_Position = vec4((corner - tile.xy) / tile.zw * 2.0 - 1.0, 0.0, 1.0);
#else
    vec2 low = max(boxLow, drawnPixels.xy) - EDGE_MARGIN;
    vec2 high = min(boxHigh, drawnPixels.zw) + EDGE_MARGIN;
    vec2 middle = clamp((low + high) * 0.5, tile.xy + 0.5, tile.xy + tile.zw - 0.5);
    vec2 reach = max(middle - low, high - middle);
    gl_PointSize = 2.0 * max(reach.x, reach.y);
    gl_Position = vec4((middle - tile.xy) / tile.zw * 2.0 - 1.0, 0.0, 1.0);
#endif
#else
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
    float spread = radius * tangent / distance + EDGE_MARGIN * pixelAngle * along;
    vec3 helper = abs(axis.y) < 0.9 ? vec3(0.0, 1.0, 0.0) : vec3(1.0, 0.0, 0.0);
    vec3 right = normalize(cross(helper, axis));
    vec3 up = cross(axis, right);
    vec2 corner = vec2((gl_VertexID & 1) != 0 ? 1.0 : -1.0, (gl_VertexID & 2) != 0 ? 1.0 : -1.0);
    vec3 position = axis * along + (right * corner.x + up * corner.y) * spread;
    gl_Position = projection * vec4(position, 1.0);
    // Cut to the box of pixels to draw.
    vec4 box = drawnPixels / viewport.zwzw * 2.0 - 1.0;
    gl_ClipDistance[0] = gl_Position.x - box.x * gl_Position.w;
    gl_ClipDistance[1] = gl_Position.y - box.y * gl_Position.w;
    gl_ClipDistance[2] = box.z * gl_Position.w - gl_Position.x;
    gl_ClipDistance[3] = box.w * gl_Position.w - gl_Position.y;
    // From the picture's clip space to the tile's.
    gl_Position.xy = gl_Position.xy * (viewport.zw / tile.zw) +
                     gl_Position.w * ((viewport.zw - 2.0 * tile.xy) / tile.zw - 1.0);
#endif
}
)";

// Ray casting per pixel, in the picture's pixels (gl_FragCoord less viewport.xy, which moves a
// tile of the picture to its place): exact silhouette, depth and normal of a true sphere. The edge
// is smoothed by the share of the pixel the silhouette covers; planets arrive back to front, so a
// soft edge blends over whatever lies behind it. Built twice: with TEXTURED for planets with a
// gradient or a surface, and without for plain coloured ones, because a software renderer runs both
// sides of a branch and would pay for the textures on every pixel.
constexpr const char* kPlanetFragmentShader = R"(
const float kPi = 3.14159265358979;

uniform mat4 projection;
uniform vec4 viewport;       // x, y, width, height in pixels
uniform vec2 ndcToRay;
uniform vec3 lightPosition;  // relative to the eye
uniform vec3 lightColor;     // linear
#ifdef TEXTURED
uniform sampler2D gradientRamps; // one row per style, RAMP_LENGTH samples from pole to pole
uniform sampler2DArray surfaces;
#endif

flat in vec3 vCenter;
flat in float vRadius;
flat in vec4 vColor; // linear
flat in vec3 vLayers;
#ifdef SPRITE
flat in float vLevel; // the surface level for tiny sprites
#endif

layout(location = 0) out vec4 fragColor;

// sRGB encoding from three square roots, within half a step of 8 bits of the exact curve
// and far cheaper than pow() in a software renderer.
vec3 linearToSrgb(vec3 c) {
    vec3 s1 = sqrt(c);
    vec3 s2 = sqrt(s1);
    vec3 s3 = sqrt(s2);
    return clamp(0.662002687 * s1 + 0.684122060 * s2 - 0.323583601 * s3 - 0.0225411470 * c,
                 0.0, 1.0);
}

void main() {
    vec2 ndc = (gl_FragCoord.xy - viewport.xy) / viewport.zw * 2.0 - 1.0;
    vec3 direction = normalize(vec3(ndc * ndcToRay, -1.0));
    // The miss vector (centre minus the ray's closest point) keeps precision for small
    // spheres far away.
    float along = dot(direction, vCenter);
    vec3 miss = vCenter - along * direction;
    float missDistance = length(miss);
    float perPixel = length(vec2(dFdx(missDistance), dFdy(missDistance)));
    float coverage = clamp(0.5 + (vRadius - missDistance) / max(perPixel, 1e-6 * vRadius), 0.0, 1.0);

    // Shade where the ray meets the sphere; beside the rim, at the nearest rim point.
    float inside = vRadius * vRadius - missDistance * missDistance;
    vec3 normal = inside > 0.0 ? (-miss - sqrt(inside) * direction) / vRadius
                               : -miss / max(missDistance, 1e-30);
#if defined(TEXTURED) && !defined(TINY)
    // Slopes need all four pixels of a block, so they are taken before any pixel leaves.
    vec3 normalDx = dFdx(normal);
    vec3 normalDy = dFdy(normal);
#endif
    // Pixels beside the silhouette leave here, sparing them the work below (a software
    // renderer skips it when a whole block has left).
    if (coverage <= 0.0 || along <= 0.0)
        discard;

    vec3 surfacePoint = vCenter + normal * vRadius;
    vec4 clip = projection * vec4(surfacePoint, 1.0);
    gl_FragDepth = clamp(0.5 * clip.z / clip.w + 0.5, 0.0, 1.0);

    vec4 diffuse = vColor;
    vec3 emission = vec3(0.0);
#ifdef TEXTURED
    // Equirectangular coordinates: v from the north pole (+y) down, u around the equator
    // (0.5 facing +z, growing towards +x). The branches depend on the planet alone, so all
    // pixels of a block take the same way.
    float v = acos(clamp(normal.y, -1.0, 1.0)) / kPi;
    if (vLayers.x >= 0.0) {
        // Plain fetches: a software renderer filters a texture far more slowly, and reads
        // four samples. A sprite is at most a fraction of the ramp's length high, so the
        // nearest sample will do; a larger planet is linear between the two nearest.
#ifdef SPRITE
        diffuse = texelFetch(gradientRamps,
                             ivec2(min(int(v * float(RAMP_LENGTH)), RAMP_LENGTH - 1), vLayers.x), 0);
#else
        float x = clamp(v * float(RAMP_LENGTH) - 0.5, 0.0, float(RAMP_LENGTH - 1));
        ivec2 at = ivec2(x, vLayers.x);
        diffuse = mix(texelFetch(gradientRamps, at, 0),
                      texelFetch(gradientRamps, ivec2(min(at.x + 1, RAMP_LENGTH - 1), at.y), 0),
                      x - float(at.x));
#endif
    }
    if (vLayers.y >= 0.0) {
        // A surface turned west to east shows at each point what lay that far west of it.
        // The texture repeats around the equator, so u may leave 0 to 1 here.
        float u = atan(normal.x, normal.z) / (2.0 * kPi) + 0.5 - vLayers.z;
#ifdef TINY
        if (vLayers.z != 0.0)
            u = fract(u);
        // The one texel under the pixel, at the level where texels are pixel sized: a few
        // pixels across, a planet shows nothing that filtering would change.
        ivec2 size = textureSize(surfaces, int(vLevel)).xy;
        ivec2 texel = min(ivec2(vec2(u, v) * vec2(size)), size - 1);
        vec4 glow = texelFetch(surfaces, ivec3(texel, vLayers.y), int(vLevel));
#else
        // The slopes of u and v follow from the normal's by the chain rule: unlike
        // differences of u, they do not jump where u wraps from 1 to 0 behind the sphere.
        float ring2 = max(normal.x * normal.x + normal.z * normal.z, 1e-12);
        vec2 slopeU = (normal.z * vec2(normalDx.x, normalDy.x) -
                       normal.x * vec2(normalDx.z, normalDy.z)) / (2.0 * kPi * ring2);
        vec2 slopeV = -vec2(normalDx.y, normalDy.y) / (kPi * sqrt(ring2));
        vec4 glow = textureGrad(surfaces, vec3(u, v, vLayers.y), vec2(slopeU.x, slopeV.x),
                                vec2(slopeU.y, slopeV.y));
#endif
        emission = glow.rgb * glow.a;
    }
#endif

    // One omnidirectional light, Lambert only: no attenuation, no ambient, no specular.
    vec3 toLight = lightPosition - surfacePoint;
    float lightDistance = length(toLight);
    float lambert = lightDistance > 0.0 ? max(dot(normal, toLight / lightDistance), 0.0) : 0.0;
    vec3 colour = diffuse.rgb * lightColor * lambert + emission;
    float alpha = diffuse.a * coverage;
    fragColor = vec4(linearToSrgb(clamp(colour, 0.0, 1.0)) * alpha, alpha);
#ifdef MARK_SOFT
    // What this colour leaves in the canvas's stencil: 1 where what lies behind still shows
    // (so the finished pixel needs the division by alpha), 2 where it covers it whole.
    gl_FragStencilRefARB = alpha < 1.0 ? 1 : 2;
#endif
}
)";

const char* const kComposeVertexShader = R"(#version 330 core
void main() {
    // One triangle that covers the whole target.
    vec2 corner = vec2((gl_VertexID & 1) != 0 ? 3.0 : -1.0, (gl_VertexID & 2) != 0 ? 3.0 : -1.0);
    gl_Position = vec4(corner, 0.0, 1.0);
}
)";

// Divides by alpha once, where the picture leaves the renderer: windows and files take
// straight alpha. Over a backdrop (straight alpha, top row first), the planets are laid on
// it as blending "over" would lay them on a target that holds it, in the same pass.
constexpr const char* kComposeFragmentShader = R"(
uniform sampler2D canvas;
#ifdef BACKDROP
uniform sampler2D backdrop;
#endif

layout(location = 0) out vec4 pictureColor;

void main() {
    vec4 premultiplied = texelFetch(canvas, ivec2(gl_FragCoord.xy), 0);
    vec4 straight = premultiplied.a > 0.0
                        ? vec4(min(premultiplied.rgb / premultiplied.a, vec3(1.0)), premultiplied.a)
                        : vec4(0.0);
#ifdef BACKDROP
    ivec2 size = textureSize(backdrop, 0);
    vec4 under = texelFetch(backdrop, ivec2(gl_FragCoord.x, size.y - 1 - int(gl_FragCoord.y)), 0);
    under.rgb *= under.a;
    pictureColor = vec4(straight.rgb * straight.a, straight.a) + under * (1.0 - straight.a);
#else
    pictureColor = straight;
#endif
}
)";

namespace {

const char* shapeDefines(PlanetShape shape) {
    switch (shape) {
    case PlanetShape::tinySprite:
        return "#define SPRITE\n#define TINY\n";
    case PlanetShape::sprite:
        return "#define SPRITE\n";
    case PlanetShape::quad:
        break;
    }
    return "";
}

} // namespace

std::string planetVertexShader(PlanetShape shape, bool inPieces) {
    return std::string("#version 330 core\n") + shapeDefines(shape) +
           (inPieces ? "#define PIECES\n" : "") + "#define EDGE_MARGIN " +
           std::to_string(kEdgeMargin) + "\n" + kPlanetVertexShader;
}

std::string composeFragmentShader(bool overBackdrop) {
    return std::string("#version 330 core\n") + (overBackdrop ? "#define BACKDROP\n" : "") +
           kComposeFragmentShader;
}

std::string planetFragmentShader(PlanetShape shape, bool textured, bool marksSoft) {
    return std::string("#version 330 core\n") +
           (marksSoft ? "#extension GL_ARB_shader_stencil_export : require\n#define MARK_SOFT\n"
                      : "") +
           shapeDefines(shape) + (textured ? "#define TEXTURED\n" : "") + "#define RAMP_LENGTH " +
           std::to_string(kGradientRampLength) + "\n" + kPlanetFragmentShader;
}

} // namespace orrery::render
