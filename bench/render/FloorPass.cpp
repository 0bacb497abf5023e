#include "bench/render/FloorPass.h"

#include "render/GradientRamps.h"
#include "render/PlanetInstances.h"
#include "render/PlanetShaders.h"
#include "render/PlanetUniforms.h"
#include "render/ShaderProgram.h"

#include <chrono>
#include <cstddef>

namespace orrery::bench {
namespace {

constexpr int kRampUnit = 0;
constexpr int kSurfaceUnit = 1;

} // namespace

std::unique_ptr<FloorPass> FloorPass::create(const SceneView& view, int width, int height,
                                             const SurfaceSource& surfaces, std::string* error) {
    std::unique_ptr<FloorPass> pass(new FloorPass(surfaces));
    const CameraProjection camera = view.projection(width, height);
    const SceneNode& root = view.scene().rootNode();
    std::vector<render::PlanetInstance> planets;
    std::vector<render::PlanetOrigin> origins;
    pass->surfaces_.beginScene();
    render::collectPlanetInstances(
        root, camera.eye(),
        [&pass](const std::string& name) { return pass->surfaces_.layerOf(name); }, planets,
        origins);
    // The floor planet's surface at its finest, as a planet filling the frame gets it.
    pass->surfaces_.endScene(static_cast<double>(width + height));
    if (planets.empty()) {
        if (error != nullptr)
            *error = "the floor's scene has no planet";
        return nullptr;
    }
    const render::PlanetInstance& planet = planets.front();
    const bool textured = planet.rampRow >= 0.0f || planet.surfaceLayer >= 0.0f;
    auto built = render::buildProgram(
        render::planetVertexShader(render::PlanetShape::quad, false),
        render::planetFragmentShader(render::PlanetShape::quad, textured, false), error);
    if (!built)
        return nullptr;
    pass->program_ = std::move(*built);
    pass->gradientRamps_ = render::makeGradientRampTexture(render::gradientRampPixels());
    pass->width_ = width;
    pass->height_ = height;
    pass->drawn_ = {0.0f, 0.0f, static_cast<float>(width), static_cast<float>(height)};

    pass->instance_.create();
    glBindBuffer(GL_ARRAY_BUFFER, pass->instance_.id());
    glBufferData(GL_ARRAY_BUFFER, sizeof(render::PlanetInstance), &planet, GL_STATIC_DRAW);
    pass->vertices_.create();
    glBindVertexArray(pass->vertices_.id());
    constexpr auto stride = static_cast<GLsizei>(sizeof(render::PlanetInstance));
    const auto attribute = [](GLuint index, GLint size, std::size_t offset) {
        glEnableVertexAttribArray(index);
        glVertexAttribPointer(index, size, GL_FLOAT, GL_FALSE, stride,
                              reinterpret_cast<const void*>(offset));
        glVertexAttribDivisor(index, 1);
    };
    attribute(0, 4, offsetof(render::PlanetInstance, center));
    attribute(1, 4, offsetof(render::PlanetInstance, color));
    attribute(2, 3, offsetof(render::PlanetInstance, rampRow));
    glBindVertexArray(0);

    const render::PlanetUniforms uniforms = render::planetUniforms(
        camera, render::findLight(root), width, height, render::PixelRect{0, 0, width, height},
        pass->surfaces_.layerWidth());
    const GLuint p = pass->program_.id();
    glUseProgram(p);
    glUniformMatrix4fv(glGetUniformLocation(p, "projection"), 1, GL_FALSE,
                       uniforms.projection.data());
    glUniform1f(glGetUniformLocation(p, "pixelAngle"), uniforms.pixelAngle);
    glUniform4f(glGetUniformLocation(p, "viewport"), 0.0f, 0.0f, uniforms.viewport[0],
                uniforms.viewport[1]);
    glUniform4fv(glGetUniformLocation(p, "tile"), 1, uniforms.tile.data());
    glUniform2f(glGetUniformLocation(p, "ndcToRay"), uniforms.ndcToRay[0], uniforms.ndcToRay[1]);
    glUniform3fv(glGetUniformLocation(p, "lightPosition"), 1, uniforms.lightPosition.data());
    glUniform3fv(glGetUniformLocation(p, "lightColor"), 1, uniforms.lightColor.data());
    glUniform1i(glGetUniformLocation(p, "gradientRamps"), kRampUnit);
    glUniform1i(glGetUniformLocation(p, "surfaces"), kSurfaceUnit);
    glUniform1f(glGetUniformLocation(p, "surfaceWidth"), uniforms.surfaceWidth);
    glUseProgram(0);
    return pass;
}

double FloorPass::drawMs(GLuint framebuffer) {
    const auto start = std::chrono::steady_clock::now();
    glBindFramebuffer(GL_FRAMEBUFFER, framebuffer);
    glViewport(0, 0, width_, height_);
    glDisable(GL_DEPTH_TEST);
    glDisable(GL_STENCIL_TEST);
    glDisable(GL_BLEND);
    glDisable(GL_SCISSOR_TEST);
    glActiveTexture(GL_TEXTURE0 + kRampUnit);
    glBindTexture(GL_TEXTURE_2D, gradientRamps_.id());
    glActiveTexture(GL_TEXTURE0 + kSurfaceUnit);
    glBindTexture(GL_TEXTURE_2D_ARRAY, surfaces_.texture());
    glActiveTexture(GL_TEXTURE0);
    glUseProgram(program_.id());
    glBindVertexArray(vertices_.id());
    // Every pixel of the frame is drawn.
    glVertexAttrib4f(3, drawn_.left, drawn_.bottom, drawn_.right, drawn_.top);
    glDrawArraysInstanced(GL_TRIANGLE_STRIP, 0, 4, 1);
    glBindVertexArray(0);
    glUseProgram(0);
    glFinish();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

} // namespace orrery::bench
