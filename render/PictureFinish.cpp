#include "render/PictureFinish.h"

#include "render/PlanetShaders.h"
#include "render/ShaderProgram.h"

namespace orrery::render {
namespace {

constexpr int kCanvasUnit = 0;
constexpr int kBackdropUnit = 1;

// What the planets leave in the stencil (see the planet fragment shader).
constexpr GLint kSoftMark = 1;

} // namespace

bool PictureFinish::build(std::string* error) {
    for (const bool overBackdrop : {false, true}) {
        auto built = buildProgram(kComposeVertexShader, composeFragmentShader(overBackdrop), error);
        if (!built)
            return false;
        Program& shader = programs_[overBackdrop ? 1 : 0];
        shader.program = std::move(*built);
        shader.canvas = glGetUniformLocation(shader.program.id(), "canvas");
        shader.backdrop = glGetUniformLocation(shader.program.id(), "backdrop");
    }
    vertices_.create();
    return true;
}

void PictureFinish::setBackdrop(const Image& image) {
    if (image.isNull()) {
        backdrop_.reset();
        return;
    }
    backdrop_.create();
    glBindTexture(GL_TEXTURE_2D, backdrop_.id());
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA8, image.width, image.height, 0, GL_RGBA,
                 GL_UNSIGNED_BYTE, image.pixels.data());
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
}

void PictureFinish::finish(const Canvas& canvas, const PixelRect& area,
                           const std::optional<PixelRect>& soft, int width, int height,
                           bool overBackdrop, bool marked) {
    glDisable(GL_DEPTH_TEST);
    glDisable(GL_BLEND);
    glDisable(GL_SCISSOR_TEST);
    glBindFramebuffer(GL_READ_FRAMEBUFFER, canvas.planetsFramebuffer());
    glBindFramebuffer(GL_DRAW_FRAMEBUFFER, canvas.pictureFramebuffer());
    const int right = area.x + area.width;
    const int top = area.y + area.height;
    glBlitFramebuffer(area.x, area.y, right, top, area.x, area.y, right, top, GL_COLOR_BUFFER_BIT,
                      GL_NEAREST);

    // The shader takes the soft pixels, and over a backdrop the empty ones too.
    const std::optional<PixelRect> shaded =
        overBackdrop ? area : (soft ? overlapOf(area, *soft) : std::nullopt);
    if (!shaded)
        return;
    glBindFramebuffer(GL_FRAMEBUFFER, canvas.pictureFramebuffer());
    glViewport(0, 0, width, height);
    glEnable(GL_SCISSOR_TEST);
    glScissor(shaded->x, shaded->y, shaded->width, shaded->height);
    if (marked) {
        glEnable(GL_STENCIL_TEST);
        glStencilMask(0);
        glStencilFunc(overBackdrop ? GL_GEQUAL : GL_EQUAL, kSoftMark, 0xFF);
    }
    const Program& shader = programs_[overBackdrop ? 1 : 0];
    glUseProgram(shader.program.id());
    glUniform1i(shader.canvas, kCanvasUnit);
    glActiveTexture(GL_TEXTURE0 + kCanvasUnit);
    glBindTexture(GL_TEXTURE_2D, canvas.planetsTexture());
    if (overBackdrop) {
        glUniform1i(shader.backdrop, kBackdropUnit);
        glActiveTexture(GL_TEXTURE0 + kBackdropUnit);
        glBindTexture(GL_TEXTURE_2D, backdrop_.id());
        glActiveTexture(GL_TEXTURE0);
    }
    glBindVertexArray(vertices_.id());
    glDrawArrays(GL_TRIANGLES, 0, 3);
    glBindVertexArray(0);
    glUseProgram(0);
    glDisable(GL_STENCIL_TEST);
    glStencilMask(0xFF);
    glDisable(GL_SCISSOR_TEST);
}

} // namespace orrery::render
