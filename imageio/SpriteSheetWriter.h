#pragma once

#include "imageio/AnimationWriter.h"

namespace orrery::imageio {

// Every frame of the loop on one PNG sheet in a grid (see sheetGrid), with the JSON atlas
// beside it: "name.png" and "name.json". The sheet streams into a hidden file, row of frames
// by row, which finish() puts in place before it writes the atlas.
std::unique_ptr<AnimationWriter>
beginSpriteSheet(const std::string& path, const AnimationSettings& settings, std::string& error);

// The atlas's path beside the sheet: the extension replaced by ".json".
std::string atlasPathFor(const std::string& sheetPath);

} // namespace orrery::imageio
