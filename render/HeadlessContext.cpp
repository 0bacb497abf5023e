#include "render/HeadlessContext.h"

#include <epoxy/egl.h>

#include <cstring>
#include <functional>
#include <vector>

namespace orrery {
namespace render {

struct HeadlessContextState {
    EGLDisplay display = EGL_NO_DISPLAY;
    EGLContext context = EGL_NO_CONTEXT;
    std::string route;
};

namespace {

bool hasExtension(const char* list, const char* name) {
    if (list == nullptr)
        return false;
    const std::size_t length = std::strlen(name);
    for (const char* at = std::strstr(list, name); at != nullptr; at = std::strstr(at + 1, name))
        if ((at == list || at[-1] == ' ') && (at[length] == ' ' || at[length] == '\0'))
            return true;
    return false;
}

std::string eglErrorText() {
    const EGLint code = eglGetError();
    switch (code) {
    case EGL_NOT_INITIALIZED:
        return "EGL_NOT_INITIALIZED";
    case EGL_BAD_ACCESS:
        return "EGL_BAD_ACCESS";
    case EGL_BAD_ALLOC:
        return "EGL_BAD_ALLOC";
    case EGL_BAD_ATTRIBUTE:
        return "EGL_BAD_ATTRIBUTE";
    case EGL_BAD_CONFIG:
        return "EGL_BAD_CONFIG";
    case EGL_BAD_CONTEXT:
        return "EGL_BAD_CONTEXT";
    case EGL_BAD_DISPLAY:
        return "EGL_BAD_DISPLAY";
    case EGL_BAD_MATCH:
        return "EGL_BAD_MATCH";
    case EGL_BAD_PARAMETER:
        return "EGL_BAD_PARAMETER";
    default:
        return "EGL error " + std::to_string(code);
    }
}

// Makes a current OpenGL 3.3 core context on an uninitialised display; false with the
// reason otherwise. The display is left initialised either way: other code in the
// process may share it, so it is never terminated.
bool contextOn(EGLDisplay display, HeadlessContextState& state, std::string& why) {
    if (display == EGL_NO_DISPLAY) {
        why = "no display";
        return false;
    }
    EGLint major = 0;
    EGLint minor = 0;
    if (eglInitialize(display, &major, &minor) != EGL_TRUE) {
        why = "eglInitialize: " + eglErrorText();
        return false;
    }
    if (!hasExtension(eglQueryString(display, EGL_EXTENSIONS), "EGL_KHR_surfaceless_context")) {
        why = "no EGL_KHR_surfaceless_context";
        return false;
    }
    if (eglBindAPI(EGL_OPENGL_API) != EGL_TRUE) {
        why = "no desktop OpenGL: " + eglErrorText();
        return false;
    }
    const EGLint configAttributes[] = {EGL_RENDERABLE_TYPE, EGL_OPENGL_BIT, EGL_SURFACE_TYPE, 0,
                                       EGL_NONE};
    EGLConfig config = nullptr;
    EGLint configs = 0;
    if (eglChooseConfig(display, configAttributes, &config, 1, &configs) != EGL_TRUE ||
        configs < 1) {
        why = "no OpenGL configuration";
        return false;
    }
    const EGLint contextAttributes[] = {EGL_CONTEXT_MAJOR_VERSION,
                                        3,
                                        EGL_CONTEXT_MINOR_VERSION,
                                        3,
                                        EGL_CONTEXT_OPENGL_PROFILE_MASK,
                                        EGL_CONTEXT_OPENGL_CORE_PROFILE_BIT,
                                        EGL_NONE};
    EGLContext context = eglCreateContext(display, config, EGL_NO_CONTEXT, contextAttributes);
    if (context == EGL_NO_CONTEXT) {
        why = "no OpenGL 3.3 core context: " + eglErrorText();
        return false;
    }
    if (eglMakeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, context) != EGL_TRUE) {
        why = "eglMakeCurrent: " + eglErrorText();
        eglDestroyContext(display, context);
        return false;
    }
    state.display = display;
    state.context = context;
    return true;
}

EGLDisplay platformDisplay(EGLenum platform, void* nativeDisplay) {
    return eglGetPlatformDisplayEXT(platform, nativeDisplay, nullptr);
}

} // namespace
} // namespace render

HeadlessContext::HeadlessContext(std::unique_ptr<render::HeadlessContextState> state)
    : state_(std::move(state)) {}

HeadlessContext::~HeadlessContext() {
    if (eglGetCurrentContext() == state_->context)
        eglMakeCurrent(state_->display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
    eglDestroyContext(state_->display, state_->context);
}

std::unique_ptr<HeadlessContext> HeadlessContext::create(std::string* error) {
    using render::hasExtension;
    auto state = std::make_unique<render::HeadlessContextState>();
    const char* client = eglQueryString(EGL_NO_DISPLAY, EGL_EXTENSIONS);
    std::string failures;
    const auto attempt = [&](const std::string& route, const std::function<EGLDisplay()>& open) {
        std::string why;
        if (render::contextOn(open(), *state, why)) {
            state->route = route;
            return true;
        }
        failures += (failures.empty() ? "" : "; ") + route + ": " + why;
        return false;
    };

    const bool platforms = hasExtension(client, "EGL_EXT_platform_base");
    if (platforms && hasExtension(client, "EGL_MESA_platform_surfaceless") &&
        attempt("surfaceless platform", [] {
            return render::platformDisplay(EGL_PLATFORM_SURFACELESS_MESA, EGL_DEFAULT_DISPLAY);
        }))
        return std::unique_ptr<HeadlessContext>(new HeadlessContext(std::move(state)));

    if (platforms && hasExtension(client, "EGL_EXT_platform_device") &&
        hasExtension(client, "EGL_EXT_device_enumeration")) {
        EGLint count = 0;
        eglQueryDevicesEXT(0, nullptr, &count);
        std::vector<EGLDeviceEXT> devices(static_cast<std::size_t>(count > 0 ? count : 0));
        if (count > 0)
            eglQueryDevicesEXT(count, devices.data(), &count);
        for (std::size_t i = 0; i < devices.size(); ++i)
            if (attempt("EGL device " + std::to_string(i), [&] {
                    return render::platformDisplay(EGL_PLATFORM_DEVICE_EXT, devices[i]);
                }))
                return std::unique_ptr<HeadlessContext>(new HeadlessContext(std::move(state)));
    }

    if (attempt("default display", [] { return eglGetDisplay(EGL_DEFAULT_DISPLAY); }))
        return std::unique_ptr<HeadlessContext>(new HeadlessContext(std::move(state)));

    if (error != nullptr)
        *error = "no headless OpenGL context (" + failures + ")";
    return nullptr;
}

const std::string& HeadlessContext::route() const {
    return state_->route;
}

} // namespace orrery
