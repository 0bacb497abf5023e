#pragma once

#include "core/model/Color.h"

#include <string>

// The light colour list, "data3.xml": a keyed archive whose root is an array of five
// colours, the light colour five times; only the first is read back.
namespace orrery {

std::string encodeLightColorArchive(const Color& color);

bool decodeLightColorArchive(const std::string& bytes, Color& color, std::string& error);

} // namespace orrery
