#pragma once

#include <memory>
#include <string>

namespace orrery {

namespace render {
struct HeadlessContextState;
}

// An OpenGL 3.3 core context, current on the thread that made it, without any window or display,
// for rendering on machines with neither a screen nor a GPU (Mesa's software renderer will do). It
// tries Mesa's surfaceless platform, then the EGL devices, then the default display.
class HeadlessContext {
public:
    // None, with every route tried and why it failed in `error`, when no context can be made.
    static std::unique_ptr<HeadlessContext> create(std::string* error);
    ~HeadlessContext();
    HeadlessContext(const HeadlessContext&) = delete;
    HeadlessContext& operator=(const HeadlessContext&) = delete;

    // Which route gave the context.
    const std::string& route() const;

private:
    explicit HeadlessContext(std::unique_ptr<render::HeadlessContextState> state);
    std::unique_ptr<render::HeadlessContextState> state_;
};

} // namespace orrery
