#include "bench/render/FloorPass.h"

#include "render/PlanetDraws.h"
#include "render/PlanetInstances.h"
#include "render/PlanetShaders.h"
#include "render/PlanetUniforms.h"
#include "render/ShaderProgram.h"

#include <chrono>
#include <cstddef>

namespace orrery::bench {

std::unique_ptr<FloorPass> FloorPass::create(const SceneView& view, int width, int height,
                                             std::string* error) {
    auto built = render::buildProgram(
        render::planetVertexShader(render::PlanetShape::quad),
        render::planetFragmentShader(render::PlanetShape::quad, false, false), error);
    if (!built)
        return nullptr;
    std::unique_ptr<FloorPass> pass(new FloorPass());
    pass->program_ = std::move(*built);
    pass->width_ = width;
    pass->height_ = height;

    // The first planet of the scene, its tangent square clipped to the frame: one quad.
    const CameraProjection camera = view.projection(width, height);
    const SceneNode& root = view.scene().rootNode();
    std::vector<render::PlanetInstance> planets;
    std::vector<render::PlanetOrigin> origins;
    render::collectPlanetInstances(
        root, camera.eye(), [](const std::string&) { return std::optional<int>(-1); }, planets,
        origins);
    if (planets.empty()) {
        if (error != nullptr)
            *error = "the floor's scene has no planet";
        return nullptr;
    }
    pass->instance_.create();
    glBindBuffer(GL_ARRAY_BUFFER, pass->instance_.id());
    glBufferData(GL_ARRAY_BUFFER, sizeof(render::PlanetInstance), &planets.front(), GL_STATIC_DRAW);
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
    attribute(2, 2, offsetof(render::PlanetInstance, rampRow));
    glBindVertexArray(0);
    pass->drawn_ = {0.0f, 0.0f, static_cast<float>(width), static_cast<float>(height)};

    const render::PlanetUniforms uniforms =
        render::planetUniforms(camera, render::findLight(root), width, height, 0);
    const GLuint p = pass->program_.id();
    glUseProgram(p);
    glUniformMatrix4fv(glGetUniformLocation(p, "projection"), 1, GL_FALSE,
                       uniforms.projection.data());
    glUniform1f(glGetUniformLocation(p, "pixelAngle"), uniforms.pixelAngle);
    glUniform4f(glGetUniformLocation(p, "viewport"), 0.0f, 0.0f, uniforms.viewport[0],
                uniforms.viewport[1]);
    glUniform2f(glGetUniformLocation(p, "ndcToRay"), uniforms.ndcToRay[0], uniforms.ndcToRay[1]);
    glUniform3fv(glGetUniformLocation(p, "lightPosition"), 1, uniforms.lightPosition.data());
    glUniform3fv(glGetUniformLocation(p, "lightColor"), 1, uniforms.lightColor.data());
    glUseProgram(0);
    return pass;
}

double FloorPass::drawMs(GLuint framebuffer) {
    const auto start = std::chrono::steady_clock::now();
    glBindFramebuffer(GL_FRAMEBUFFER, framebuffer);
    glViewport(0, 0, width_, height_);
    glDisable(GL_DEPTH_TEST);
    glDisable(GL_BLEND);
    glDisable(GL_SCISSOR_TEST);
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
