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

// The change log lists a planet (a childless node under the root) for each change to it,
// its coming and its going; any other change leaves nothing to go by.
TEST(SceneNode, ChangeLogListsChangedPlanets_AndBreaksAtAnyOtherChange) {
    Scene scene;
    auto planet = named("planet");
    auto other = named("other");
    const auto since = scene.revision();
    const auto keysSince = [&](std::uint64_t revision) {
        std::vector<const SceneNode*> keys;
        const auto changes = scene.changesSince(revision);
        for (const SceneChange& change : changes.value())
            keys.push_back(change.key);
        return keys;
    };
    scene.rootNode().addChildNode(planet);
    scene.rootNode().addChildNode(other);
    planet->setPosition({1, 2, 3});
    const auto afterMove = scene.revision();
    other->removeFromParentNode();
    other.reset(); // gone: the log still tells it apart, and no longer reaches it
    EXPECT_EQ(keysSince(since).size(), 4u);
    const auto changes = scene.changesSince(afterMove).value();
    ASSERT_EQ(changes.size(), 1u);
    EXPECT_TRUE(changes[0].node.expired());
    EXPECT_EQ(keysSince(scene.revision()).size(), 0u);

    // Only the latest changes are kept.
    const auto beforeMany = scene.revision();
    for (std::size_t i = 0; i <= SceneChangeLog::kCapacity; ++i)
        planet->setHidden(i % 2 == 0);
    EXPECT_FALSE(scene.changesSince(beforeMany));
    EXPECT_EQ(keysSince(beforeMany + 1).size(), SceneChangeLog::kCapacity);

    const std::function<void()> breaks[] = {
        [&] {
            scene.rootNode().setPosition({1, 0, 0});
        },
        [&] { planet->addChildNode(named("moon")); },         // the planet gains a child
        [&] { planet->children().front()->setHidden(true); }, // below the root's children
        [&] { planet->setName("group"); },                    // a node with children
    };
    for (std::size_t i = 0; i < std::size(breaks); ++i) {
        const auto before = scene.revision();
        breaks[i]();
        EXPECT_FALSE(scene.changesSince(before)) << "change " << i;
        EXPECT_TRUE(scene.changesSince(scene.revision())) << "change " << i;
    }
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
