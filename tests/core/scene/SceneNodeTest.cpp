#include "core/scene/Replace.h"
#include "core/scene/Scene.h"

#include <gtest/gtest.h>

#include <functional>

namespace orrery {
namespace {

std::shared_ptr<SceneNode> named(const std::string& name) {
    auto node = SceneNode::create();
    node->setName(name);
    return node;
}

TEST(SceneNode, FindsEveryChildOfAName_InChildOrder_EvenAfterRenaming) {
    Scene scene;
    const std::vector<std::shared_ptr<SceneNode>> nodes{named("x"), named("y"), named("x")};
    for (const auto& node : nodes)
        scene.rootNode().addChildNode(node);
    nodes[1]->setName("x"); // sits between the others, so it must be found between them
    EXPECT_EQ(scene.rootNode().childNodesNamed("x"), nodes);
    EXPECT_TRUE(scene.rootNode().childNodesNamed("y").empty());
    EXPECT_TRUE(scene.rootNode().childNodesNamed("X").empty()); // case-sensitive
    EXPECT_TRUE(scene.rootNode().childNodesNamed("").empty());
}

TEST(SceneNode, RemovingWhileWalkingASnapshotIsSafe_AndRemovedNodesLiveOnDetached) {
    Scene scene;
    for (int i = 0; i < 3; ++i)
        scene.rootNode().addChildNode(named("p"));
    scene.rootNode().addChildNode(named("q"));
    std::shared_ptr<SceneNode> kept;
    for (const auto& node : scene.rootNode().childNodesNamed("p")) {
        node->removeFromParentNode();
        kept = node;
    }
    EXPECT_EQ(scene.rootNode().childCount(), 1u);
    EXPECT_EQ(scene.rootNode().children().front()->name(), "q");
    EXPECT_EQ(kept->parent(), nullptr);
    kept->setPosition({1, 2, 3}); // harmless on a detached node
    kept->removeFromParentNode();
}

TEST(SceneNode, EveryChangeBelowTheRootChangesTheRevision) {
    Scene scene;
    auto group = named("group");
    auto leaf = named("leaf");
    group->addChildNode(leaf);
    auto last = scene.revision();
    auto changed = [&] {
        const bool grew = scene.revision() > last;
        last = scene.revision();
        return grew;
    };
    const std::function<void()> changes[] = {
        [&] { scene.rootNode().addChildNode(group); },
        [&] {
            leaf->setPosition({1, 0, 0});
        },
        [&] { leaf->setHidden(true); },
        [&] {
            leaf->setSphere(Sphere{2.0, std::nullopt});
        },
        [&] { leaf->setMaterial(Material{}); },
        [&] { leaf->setName("renamed"); },
        [&] { leaf->removeFromParentNode(); },
    };
    for (std::size_t i = 0; i < std::size(changes); ++i) {
        changes[i]();
        EXPECT_TRUE(changed()) << "change " << i;
    }
    leaf->setPosition({5, 0, 0}); // no longer part of the scene
    EXPECT_FALSE(changed());
}

TEST(SceneNode, AddingANodeElsewhereMovesIt_AndWorldPositionAddsTheParents) {
    Scene scene;
    auto group = named("group");
    auto leaf = named("leaf");
    group->setPosition({10, 20, 30});
    leaf->setPosition({1, 2, 3});
    scene.rootNode().addChildNode(group);
    scene.rootNode().addChildNode(leaf);
    group->addChildNode(leaf);
    EXPECT_EQ(scene.rootNode().childCount(), 1u);
    EXPECT_EQ(leaf->parent(), group.get());
    EXPECT_EQ(group->childNodesNamed("leaf").size(), 1u);
    EXPECT_EQ(leaf->worldPosition(), (Vec3{11, 22, 33}));
}

TEST(Replace, ReplacesEveryLiteralOccurrence) {
    EXPECT_EQ(Replace("planet1424700000", "planet", ""), "1424700000");
    EXPECT_EQ(Replace("planetplanet7planet", "planet", ""), "7");
    EXPECT_EQ(Replace("aaa", "aa", "b"), "ba"); // left to right, no overlaps
    EXPECT_EQ(Replace("Planet7", "planet", ""), "Planet7");
    EXPECT_EQ(Replace("", "planet", "x"), "");
    EXPECT_EQ(Replace("planet", "", "x"), "planet");
}

} // namespace
} // namespace orrery
