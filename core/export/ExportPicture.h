#pragma once

#include "core/model/Color.h"
#include "core/styles/Image.h"

namespace orrery {

// The picture laid over a plain image of the same size in one colour: straight-alpha
// "source over", so the result is opaque wherever the colour is opaque. Done in place on a
// picture handed over, so that a poster is not held twice.
Image overImage3(Image picture, Color background);

// What an export writes for the scene picture: laid over the background colour when the
// user asked for it and a colour is chosen (backgrounds 1 to 5); otherwise the picture
// alone, transparency kept. Background 0 never lays anything under it.
Image exportPicture(Image scene, long currentBackground, bool includeBackground);

// A frame of an animation: as exportPicture, and for a format without alpha (keepsAlpha
// false) always laid over the background, and over black where that leaves transparency.
Image exportAnimationFrame(Image scene, long currentBackground, bool includeBackground,
                           bool keepsAlpha);

} // namespace orrery
