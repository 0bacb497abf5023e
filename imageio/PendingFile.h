#pragma once

#include <cstddef>
#include <memory>
#include <string>

namespace orrery::imageio {

// A file written in place of another: a hidden temporary beside the target, renamed over it
// once it is complete and on disk, removed if it never is. So the target holds either its old
// content or all of the new one, and a stream that stops half way leaves nothing behind.
class PendingFile {
public:
    // None, with the reason in `error`, when no temporary can be made beside path.
    static std::unique_ptr<PendingFile> create(const std::string& path, std::string& error);
    ~PendingFile();
    PendingFile(const PendingFile&) = delete;
    PendingFile& operator=(const PendingFile&) = delete;

    const std::string& targetPath() const { return target_; }
    const std::string& temporaryPath() const { return temporary_; }
    // Appends bytes; an empty text, or why they could not be written.
    std::string write(const void* data, std::size_t size);
    // Syncs the temporary and renames it over the target; an empty text, or why it failed
    // (the temporary is then gone too). One of many files that are synced together once all
    // are written (the frames of a sequence) may leave the sync out.
    enum class Sync { now, later };
    std::string commit(Sync sync = Sync::now);
    void abandon();

private:
    PendingFile(std::string target, std::string temporary, int descriptor);
    std::string target_;
    std::string temporary_;
    int descriptor_ = -1;
    bool done_ = false;
};

} // namespace orrery::imageio
