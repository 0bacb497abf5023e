#pragma once

#include "imageio/AnimationWriter.h"

namespace orrery::imageio {

// Every frame of the loop on one PNG sheet in a grid (see sheetGrid), with the JSON atlas
// beside it: "name.png" and "name.json". The sheet is held whole until finish(), which writes
// the picture, then the atlas, each in one step.
std::unique_ptr<AnimationWriter>
beginSpriteSheet(const std::string& path, const AnimationSettings& settings, std::string& error);

// The atlas's path beside the sheet: the extension replaced by ".json".
std::string atlasPathFor(const std::string& sheetPath);

} // namespace orrery::imageio
