#include "core/styles/AxisCross.h"

namespace orrery {
namespace {

constexpr double kAxisLength = 160.0;
constexpr double kArrowBack = 15.0;
constexpr double kArrowHalfWidth = 5.0;

} // namespace

AxisCross axisCross(double viewWidth, double viewHeight) {
    const AxisPoint c{viewWidth / 2.0, viewHeight / 2.0};
    const AxisPoint xTip{c.x + kAxisLength, c.y};
    const AxisPoint yTip{c.x, c.y + kAxisLength};
    const double xBack = xTip.x - kArrowBack;
    const double yBack = yTip.y - kArrowBack;

    AxisCross cross;
    cross.xColor = {230.0 / 255.0, 0.0, 0.0, 1.0};
    cross.yColor = {0.0, 160.0 / 255.0, 0.0, 1.0};
    cross.xStrokes = {{{c, xTip},
                       {xTip, {xBack, c.y + kArrowHalfWidth}},
                       {xTip, {xBack, c.y - kArrowHalfWidth}}}};
    cross.yStrokes = {{{c, yTip},
                       {yTip, {c.x + kArrowHalfWidth, yBack}},
                       {yTip, {c.x - kArrowHalfWidth, yBack}}}};
    cross.labels = {{{"X", {c.x + 165.0, c.y - 10.0}, cross.xColor},
                     {"Y", {c.x - 5.0, c.y + 165.0}, cross.yColor},
                     {"Z", {c.x - 5.0, c.y - 17.0}, kPureBlue}}};
    return cross;
}

} // namespace orrery
