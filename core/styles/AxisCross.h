#pragma once

#include "core/model/Color.h"

#include <array>
#include <string>

// The small axis cross drawn at the centre of the document area, behind the planets: a
// red X axis to the right, a green Y axis upwards, each with an arrow head, and the Z label
// where the z axis comes out of the screen towards the viewer. It is a fixed marker and
// does not follow the camera. Coordinates have their origin at the bottom-left, y up.
namespace orrery {

struct AxisPoint {
    double x = 0.0;
    double y = 0.0;
    friend bool operator==(const AxisPoint&, const AxisPoint&) = default;
};

struct AxisSegment {
    AxisPoint from;
    AxisPoint to;
};

struct AxisLabel {
    std::string text;
    AxisPoint origin; // the left end of the text's baseline
    Color color;
};

struct AxisCross {
    static constexpr double lineWidth = 1.5;
    static constexpr double labelPointSize = 16.0;
    // The X axis and its two arrow strokes, then the same for Y.
    std::array<AxisSegment, 3> xStrokes;
    std::array<AxisSegment, 3> yStrokes;
    Color xColor;
    Color yColor;
    std::array<AxisLabel, 3> labels; // "X", "Y", "Z"
};

AxisCross axisCross(double viewWidth, double viewHeight);

} // namespace orrery
