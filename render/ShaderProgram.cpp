#include "render/ShaderProgram.h"

#include <vector>

namespace orrery::render {
namespace {

std::string shaderLog(GLuint shader) {
    GLint length = 0;
    glGetShaderiv(shader, GL_INFO_LOG_LENGTH, &length);
    std::vector<char> text(static_cast<std::size_t>(length > 0 ? length : 1), '\0');
    glGetShaderInfoLog(shader, static_cast<GLsizei>(text.size()), nullptr, text.data());
    return text.data();
}

std::string programLog(GLuint program) {
    GLint length = 0;
    glGetProgramiv(program, GL_INFO_LOG_LENGTH, &length);
    std::vector<char> text(static_cast<std::size_t>(length > 0 ? length : 1), '\0');
    glGetProgramInfoLog(program, static_cast<GLsizei>(text.size()), nullptr, text.data());
    return text.data();
}

// A compiled shader, deleted when it goes out of scope (a linked program keeps its code).
struct CompiledShader {
    GLuint id = 0;
    ~CompiledShader() {
        if (id != 0)
            glDeleteShader(id);
    }
};

bool compile(CompiledShader& shader, GLenum stage, std::string_view source, const char* name,
             std::string* error) {
    shader.id = glCreateShader(stage);
    const GLchar* text = source.data();
    const auto length = static_cast<GLint>(source.size());
    glShaderSource(shader.id, 1, &text, &length);
    glCompileShader(shader.id);
    GLint ok = GL_FALSE;
    glGetShaderiv(shader.id, GL_COMPILE_STATUS, &ok);
    if (ok == GL_TRUE)
        return true;
    if (error != nullptr)
        *error = std::string(name) + " shader does not compile: " + shaderLog(shader.id);
    return false;
}

} // namespace

std::optional<GlObject> buildProgram(std::string_view vertexSource, std::string_view fragmentSource,
                                     std::string* error) {
    CompiledShader vertex;
    CompiledShader fragment;
    if (!compile(vertex, GL_VERTEX_SHADER, vertexSource, "vertex", error) ||
        !compile(fragment, GL_FRAGMENT_SHADER, fragmentSource, "fragment", error))
        return std::nullopt;
    GlObject program(GlObject::Kind::program);
    program.create();
    glAttachShader(program.id(), vertex.id);
    glAttachShader(program.id(), fragment.id);
    glLinkProgram(program.id());
    glDetachShader(program.id(), vertex.id);
    glDetachShader(program.id(), fragment.id);
    GLint ok = GL_FALSE;
    glGetProgramiv(program.id(), GL_LINK_STATUS, &ok);
    if (ok != GL_TRUE) {
        if (error != nullptr)
            *error = "shaders do not link: " + programLog(program.id());
        return std::nullopt;
    }
    return program;
}

} // namespace orrery::render
