#pragma once

#include "core/edit/EditHistory.h"

#include <optional>
#include <string>
#include <string_view>

// What the window says about the document it shows: the package that Save writes to,
// whether the system has changes that are not saved, and the title that tells both. The
// clean mark lives in the history, so undoing back to the saved state is unmodified again.
namespace orrery {

class DocumentState {
public:
    explicit DocumentState(EditHistory& history) : history_(history) {}

    bool isModified() const { return !history_.isClean(); }
    // The package Save writes to: the last one saved or opened, kept through New; empty
    // for a system that was never saved.
    const std::string& path() const { return path_; }
    // The package the system is: named in the title, and the one the question about
    // unsaved changes offers to save into. None before the first save or open and after
    // New, where saving needs a name to be chosen.
    std::optional<std::string> package() const;

    // A save to `path` succeeded; the system is that package now.
    void saved(std::string path);
    // The system was read from `path`: a history of its own, nothing modified.
    void opened(std::string path);
    // The system was read from a picture: a history of its own, and no package yet, so
    // that Save asks for a name rather than writing over the last package.
    void openedPicture();
    // New: an empty system with nothing to undo; Save still writes over the last package.
    void cleared();

    // The program's name, ": " and the package's name when there is one, and the marker
    // after a space while there are unsaved changes.
    std::string title(std::string_view appName, std::string_view unsavedMarker) const;

private:
    EditHistory& history_;
    std::string path_;
    bool named_ = false;
};

// A package's name as the title shows it: the folder's name without ".kvx".
std::string packageDisplayName(std::string_view path);

} // namespace orrery
