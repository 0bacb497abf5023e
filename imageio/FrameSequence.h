#pragma once

#include "imageio/AnimationWriter.h"

namespace orrery::imageio {

// One PNG a frame in a folder, named "folder_0001.png" and on as in the whole loop (from the
// settings' first frame). The folder is made when it is missing (its parent must exist). Each
// file is written in one step; abandoning removes the files this writer wrote, and the folder
// if it made it, so other pieces of the same loop in that folder stay.
std::unique_ptr<AnimationWriter> beginFrameSequence(const std::string& folder,
                                                    const AnimationSettings& settings,
                                                    std::string& error);

} // namespace orrery::imageio
