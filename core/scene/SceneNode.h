#pragma once

#include "core/model/Color.h"
#include "core/scene/Material.h"
#include "core/scene/SceneChangeLog.h"
#include "core/scene/Vec3.h"

#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace orrery {

class SceneDepthRange;
class SceneNodeBatch;

// A sphere around its node's position; the material list holds at most one material, and
// none means the renderer's default (plain white, lit).
struct Sphere {
    double radius = 1.0;
    std::optional<Material> material;
    // How far the surface has turned about the sphere's north-south axis (+y), west to east,
    // in whole turns from 0 up to 1: what a turntable animation changes from frame to frame.
    // The gradient varies only from pole to pole, so only the surface image moves.
    double turn = 0.0;
};

struct Camera {
    double xFov = 0.0; // degrees
    double yFov = 0.0; // degrees
    double orthographicScale = 1.0;
    bool automaticallyAdjustsZRange = false;
    bool usesOrthographicProjection = false;
};

enum class LightType { omni };

struct Light {
    LightType type = LightType::omni;
    std::string name;
    Color color = kWhite;
};

// A node of the scene graph: a name, a position relative to its parent, a hidden flag
// (hiding a node hides everything below it) and optionally a sphere, a camera or a light.
// Nodes are shared: whoever keeps a node removed from the scene keeps a detached node.
//
// A scene's change log lists the planets that changed: nodes without children right under
// the root, each changed, added or taken away. Any other change (of the root, of a node
// with children, or below the root's children) breaks the log.
class SceneNode : public std::enable_shared_from_this<SceneNode> {
public:
    using ChildList = std::list<std::shared_ptr<SceneNode>>;

    static std::shared_ptr<SceneNode> create() { return std::shared_ptr<SceneNode>(new SceneNode); }
    ~SceneNode();
    SceneNode(const SceneNode&) = delete;
    SceneNode& operator=(const SceneNode&) = delete;

    const std::string& name() const { return name_; }
    void setName(std::string name);

    Vec3 position() const { return position_; }
    void setPosition(Vec3 position);
    // The position in the coordinates of the scene's root.
    Vec3 worldPosition() const;

    bool isHidden() const { return hidden_; }
    void setHidden(bool hidden);

    const std::optional<Sphere>& sphere() const { return sphere_; }
    void setSphere(std::optional<Sphere> sphere);
    // Does nothing on a node without a sphere.
    void setMaterial(std::optional<Material> material);

    const std::optional<Camera>& camera() const { return camera_; }
    void setCamera(std::optional<Camera> camera);
    const std::optional<Light>& light() const { return light_; }
    void setLight(std::optional<Light> light);

    SceneNode* parent() const { return parent_; }
    // Appends the node after the existing children, taking it away from any former parent.
    void addChildNode(std::shared_ptr<SceneNode> child);
    void removeFromParentNode();
    // Replaces every child that `keep` does not keep by the batch's nodes, appended after the
    // kept ones as one change, and returns the children taken away as a batch of detached
    // nodes. It costs a short walk over both lists and no allocation per node, so that a
    // system of 100,000 planets is exchanged at once, and freed wherever the batch goes.
    SceneNodeBatch exchangeChildren(SceneNodeBatch incoming,
                                    const std::function<bool(const SceneNode&)>& keep);

    const ChildList& children() const { return children_; }
    std::size_t childCount() const { return children_.size(); }
    // The children whose name equals the text exactly, in child order. The result is a
    // snapshot: the caller may remove or add children while walking it.
    std::vector<std::shared_ptr<SceneNode>> childNodesNamed(std::string_view name) const;

    // Increases along the parent's child list: the order of siblings as a number.
    std::uint64_t siblingOrder() const { return appendOrder_; }

    // Grows by at least one with every change at or below this node; read it on the root
    // to learn whether anything in the scene changed since the last look. On the root it
    // grows by exactly one with every change.
    std::uint64_t revision() const { return revision_; }

private:
    friend class Scene;
    friend class SceneNodeBatch;

    SceneNode() = default;
    // Counts a change of `changed` (this node, or a child just added or taken away) here and
    // in every ancestor, and tells the change log of the scene this belongs to.
    void touch(const SceneNode& changed);
    void touch() { touch(*this); }
    void indexChild(SceneNode* child);
    void unindexChild(SceneNode* child);

    struct NameHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const {
            return std::hash<std::string_view>{}(text);
        }
    };
    using NameIndex =
        std::unordered_map<std::string, std::vector<SceneNode*>, NameHash, std::equal_to<>>;
    static void unindex(NameIndex& index, const SceneNode* node);

    std::string name_;
    Vec3 position_;
    bool hidden_ = false;
    std::optional<Sphere> sphere_;
    std::optional<Camera> camera_;
    std::optional<Light> light_;

    SceneNode* parent_ = nullptr;
    ChildList::iterator placeInParent_;
    std::uint64_t appendOrder_ = 0; // increases along the parent's child list
    std::uint64_t nextAppendOrder_ = 0;
    ChildList children_;
    // Children by name, each list in child order, so that finding a planet among 100,000
    // does not walk them all.
    NameIndex childrenByName_;
    std::uint64_t revision_ = 0;
    SceneChangeLog* changeLog_ = nullptr; // set on a scene's root only
};

// Detached nodes in order, indexed by name as a parent indexes its children: made away from
// any scene (on a worker, say) and taken in by SceneNode::exchangeChildren in one step, or
// taken out by it. A node's name is final once it is in a batch.
class SceneNodeBatch {
public:
    // Does nothing with a node that has a parent.
    void append(std::shared_ptr<SceneNode> node);
    std::size_t size() const { return nodes_.size(); }
    const SceneNode::ChildList& nodes() const { return nodes_; }

    // The depth range of the nodes, worked out where the batch is made (SceneDepthRange::
    // prepared), for the scene that takes in the batch whole; none when not worked out.
    void setDepthRange(std::shared_ptr<SceneDepthRange> range) { depthRange_ = std::move(range); }
    std::shared_ptr<SceneDepthRange> takeDepthRange() { return std::move(depthRange_); }

private:
    friend class SceneNode;
    SceneNode::ChildList nodes_;
    SceneNode::NameIndex byName_;
    std::shared_ptr<SceneDepthRange> depthRange_;
};

} // namespace orrery
