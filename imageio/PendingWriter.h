#pragma once

#include "imageio/AnimationWriter.h"
#include "imageio/PendingFile.h"

#include <memory>
#include <string>
#include <utility>

namespace orrery::imageio {

// Makes a writer that streams into a pending file at path, and starts it (its start() gives an
// empty text or the reason it cannot begin). None, with the reason in `error`, when the file
// cannot be made beside path or the writer does not start; the file then goes too.
template <typename Writer, typename... Arguments>
std::unique_ptr<AnimationWriter> startPendingWriter(const std::string& path, std::string& error,
                                                    Arguments&&... arguments) {
    std::unique_ptr<PendingFile> file = PendingFile::create(path, error);
    if (!file)
        return nullptr;
    auto writer = std::make_unique<Writer>(std::move(file), std::forward<Arguments>(arguments)...);
    error = writer->start();
    if (!error.empty())
        return nullptr;
    return writer;
}

} // namespace orrery::imageio
