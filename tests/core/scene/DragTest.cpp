#include "core/model/TextNumber.h"
#include "core/scene/SceneView.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

struct PositionReport {
    std::string tsecs, x, y, z;
};

// A scene view wired to a recording controller.
class Drag : public ::testing::Test {
protected:
    Drag() {
        view.setViewSize(800, 600);
        view.setController({[this](const std::string& tsecs) { selected.push_back(tsecs); },
                            [this](const std::string& tsecs, const std::string& x,
                                   const std::string& y, const std::string& z) {
                                reports.push_back({tsecs, x, y, z});
                            }});
    }

    ViewPoint centreOf(Vec3 scenePoint) const {
        const Vec3 p = view.projectPoint(scenePoint);
        return {p.x, p.y};
    }
    const SceneNode& node(const std::string& tsecs) const {
        return *view.scene().rootNode().childNodesNamed("planet" + tsecs).at(0);
    }

    SceneView view;
    std::vector<std::string> selected;
    std::vector<PositionReport> reports;
};

TEST_F(Drag, EmptySpaceOrPressesWithoutMovingMoveNothing) {
    view.createPlanet("3", "20", "10", "0", "24");
    view.mouseDown({10, 10});
    EXPECT_FALSE(view.isDragging());
    view.mouseDragged({400, 300});
    view.mouseUp();
    const ViewPoint at = centreOf({20, 10, 0});
    for (int press = 0; press < 2; ++press) {
        view.mouseDown(at);
        view.mouseUp();
    }
    EXPECT_EQ(selected, (std::vector<std::string>{"0", "3", "3"}));
    EXPECT_TRUE(reports.empty());
    EXPECT_EQ(node("3").position(), (Vec3{20, 10, 0}));
}

TEST_F(Drag, DraggingRightChangesOnlyX) {
    view.createPlanet("1424700000", "0", "0", "0", "24");
    int redraws = 0;
    view.setNeedsDisplayHandler([&] { ++redraws; });
    const ViewPoint start = centreOf({5, 6, 0});
    const Vec3 grabbedOffset = view.hitTest(start).at(0).localCoordinates;
    view.mouseDown(start);
    EXPECT_EQ(selected, (std::vector<std::string>{"1424700000"}));
    EXPECT_TRUE(view.isDragging());
    EXPECT_EQ(redraws, 0);
    for (double step = 10; step <= 50; step += 10)
        view.mouseDragged({start.x + step, start.y});
    view.mouseUp();
    EXPECT_FALSE(view.isDragging());

    ASSERT_EQ(reports.size(), 5u);
    EXPECT_EQ(redraws, 5);
    const PositionReport& last = reports.back();
    EXPECT_EQ(last.tsecs, "1424700000");
    EXPECT_GT(floatValue(last.x), 0.0f);
    EXPECT_NEAR(floatValue(last.y), 0.0f, 1e-4);
    EXPECT_EQ(last.z, "0");
    const Vec3 moved = node("1424700000").position();
    EXPECT_EQ(formatGeneral(static_cast<float>(moved.x)), last.x);
    EXPECT_NEAR(moved.y, 0.0, 1e-9);
    EXPECT_EQ(moved.z, 0.0);
    // A planet at the origin lies at the depth of its own local offsets, so the grabbed
    // point stays under the mouse.
    const Vec3 grabbed = view.projectPoint(moved + grabbedOffset);
    EXPECT_NEAR(grabbed.x, start.x + 50, 1e-6);
    EXPECT_NEAR(grabbed.y, start.y, 1e-6);

    // Reports stop with the mouse-up.
    view.mouseDragged({start.x + 90, start.y});
    EXPECT_EQ(reports.size(), 5u);
}

TEST_F(Drag, DepthNeverChanges_AndThePlanetFollowsAtTheDepthOfTheGrabbedPoint) {
    view.createPlanet("9", "0", "0", "-500", "24");
    const ViewPoint start = centreOf({0, 0, -500});
    view.mouseDown(start);
    // Grabbed at the front (local offset (0, 0, 24), 476 from the eye) a planet 1000 from
    // the eye moves at the speed of points 476 away: it covers 476/1000 of the mouse's way.
    view.mouseDragged({start.x + 100, start.y});
    const Vec3 shown = view.projectPoint(node("9").position());
    EXPECT_NEAR(shown.x - start.x, 47.6, 1e-6);
    EXPECT_NEAR(shown.y, start.y, 1e-6);
    view.mouseDragged({start.x - 60, start.y + 80});
    view.mouseUp();
    ASSERT_EQ(reports.size(), 2u);
    EXPECT_EQ(reports[0].z, "-500");
    EXPECT_EQ(reports[1].z, "-500");
    EXPECT_EQ(node("9").position().z, -500.0);
    EXPECT_LT(node("9").position().x, 0.0);
    EXPECT_GT(node("9").position().y, 0.0);
}

TEST_F(Drag, SameNameNodesAreAllReported_TheLastOneIsDragged_EvenWhenDeleted) {
    view.createPlanet("5", "0", "0", "0", "24");
    view.createPlanet("5", "0", "0", "-100", "24");
    view.mouseDown(centreOf({0, 0, 0}));
    EXPECT_EQ(selected, (std::vector<std::string>{"5", "5"}));
    view.mouseDragged({500, 300});
    const auto nodes = view.scene().rootNode().childNodesNamed("planet5");
    EXPECT_EQ(nodes[0]->position(), (Vec3{0, 0, 0}));
    EXPECT_NE(nodes[1]->position().x, 0.0);
    EXPECT_EQ(nodes[1]->position().z, -100.0);
    view.deletePlanet("5");
    view.mouseDragged({450, 320}); // moves the detached node only
    view.mouseUp();
    EXPECT_EQ(view.scene().rootNode().childCount(), 2u);
}

} // namespace
} // namespace orrery
