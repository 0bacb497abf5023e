#include "core/edit/DocumentState.h"

#include <filesystem>

namespace orrery {

std::optional<std::string> DocumentState::package() const {
    return named_ ? std::optional(path_) : std::nullopt;
}

void DocumentState::saved(std::string path) {
    path_ = std::move(path);
    named_ = true;
    history_.setClean();
}

void DocumentState::opened(std::string path) {
    path_ = std::move(path);
    named_ = true;
    history_.clear();
}

void DocumentState::openedPicture() {
    path_.clear();
    named_ = false;
    history_.clear();
}

void DocumentState::cleared() {
    named_ = false;
    history_.clear();
}

std::string DocumentState::title(std::string_view appName, std::string_view unsavedMarker) const {
    std::string title(appName);
    if (named_)
        title += ": " + packageDisplayName(path_);
    if (isModified())
        (title += ' ') += unsavedMarker;
    return title;
}

std::string packageDisplayName(std::string_view path) {
    std::filesystem::path package(path);
    if (!package.has_filename())
        package = package.parent_path();
    return package.stem().string();
}

} // namespace orrery
