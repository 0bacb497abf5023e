#include "core/scene/SceneNode.h"

#include <algorithm>
#include <utility>

namespace orrery {

SceneNode::~SceneNode() {
    // Children that someone else still holds become detached nodes.
    for (const auto& child : children_)
        child->parent_ = nullptr;
}

void SceneNode::touch(const SceneNode& changed) {
    SceneNode* top = this;
    for (SceneNode* node = this; node != nullptr; node = node->parent_) {
        ++node->revision_;
        top = node;
    }
    if (top->changeLog_ == nullptr)
        return;
    // A planet changed itself (its parent is the root), or the root gained or lost it.
    const bool planet =
        &changed != top && changed.children_.empty() && (changed.parent_ == top || this == top);
    if (planet)
        top->changeLog_->record(top->revision_, changed);
    else
        top->changeLog_->breakAt(top->revision_);
}

void SceneNode::setName(std::string name) {
    if (name == name_)
        return;
    if (parent_ != nullptr)
        parent_->unindexChild(this);
    name_ = std::move(name);
    if (parent_ != nullptr)
        parent_->indexChild(this);
    touch();
}

void SceneNode::setPosition(Vec3 position) {
    position_ = position;
    touch();
}

Vec3 SceneNode::worldPosition() const {
    Vec3 world = position_;
    for (const SceneNode* node = parent_; node != nullptr; node = node->parent_)
        world = world + node->position_;
    return world;
}

void SceneNode::setHidden(bool hidden) {
    hidden_ = hidden;
    touch();
}

void SceneNode::setSphere(std::optional<Sphere> sphere) {
    sphere_ = std::move(sphere);
    touch();
}

void SceneNode::setMaterial(std::optional<Material> material) {
    if (!sphere_)
        return;
    sphere_->material = std::move(material);
    touch();
}

void SceneNode::setCamera(std::optional<Camera> camera) {
    camera_ = camera;
    touch();
}

void SceneNode::setLight(std::optional<Light> light) {
    light_ = std::move(light);
    touch();
}

void SceneNode::addChildNode(std::shared_ptr<SceneNode> child) {
    if (!child || child.get() == this)
        return;
    child->removeFromParentNode();
    SceneNode* raw = child.get();
    children_.push_back(std::move(child));
    raw->parent_ = this;
    raw->placeInParent_ = std::prev(children_.end());
    raw->appendOrder_ = nextAppendOrder_++;
    indexChild(raw);
    touch(*raw);
}

void SceneNode::removeFromParentNode() {
    SceneNode* parent = parent_;
    if (parent == nullptr)
        return;
    parent->unindexChild(this);
    // Keep this node alive until the bookkeeping is done: the list may hold the last owner.
    const std::shared_ptr<SceneNode> keep = *placeInParent_;
    parent->children_.erase(placeInParent_);
    parent_ = nullptr;
    parent->touch(*this);
}

SceneNodeBatch SceneNode::exchangeChildren(SceneNodeBatch incoming,
                                           const std::function<bool(const SceneNode&)>& keep) {
    SceneNodeBatch outgoing;
    outgoing.nodes_.splice(outgoing.nodes_.end(), children_);
    outgoing.byName_.swap(childrenByName_);
    std::vector<SceneNode*> kept;
    for (auto place = outgoing.nodes_.begin(); place != outgoing.nodes_.end();) {
        const auto next = std::next(place);
        SceneNode* node = place->get();
        if (keep(*node)) {
            // Splicing keeps the node's place valid, now in this list.
            children_.splice(children_.end(), outgoing.nodes_, place);
            kept.push_back(node);
        } else {
            node->parent_ = nullptr;
        }
        place = next;
    }
    // The incoming index becomes this node's; the few kept children go back into it, ahead
    // of the incoming ones, as their append order says.
    childrenByName_.swap(incoming.byName_);
    for (SceneNode* node : kept) {
        unindex(outgoing.byName_, node);
        indexChild(node);
    }
    for (auto place = incoming.nodes_.begin(); place != incoming.nodes_.end(); ++place) {
        SceneNode* node = place->get();
        node->parent_ = this;
        node->placeInParent_ = place;
        node->appendOrder_ = nextAppendOrder_++;
    }
    const bool changed = !incoming.nodes_.empty() || !outgoing.nodes_.empty();
    children_.splice(children_.end(), incoming.nodes_);
    if (changed)
        touch();
    return outgoing;
}

void SceneNodeBatch::append(std::shared_ptr<SceneNode> node) {
    if (!node || node->parent_ != nullptr)
        return;
    byName_[node->name_].push_back(node.get());
    nodes_.push_back(std::move(node));
}

std::vector<std::shared_ptr<SceneNode>> SceneNode::childNodesNamed(std::string_view name) const {
    std::vector<std::shared_ptr<SceneNode>> matches;
    const auto found = childrenByName_.find(name);
    if (found == childrenByName_.end())
        return matches;
    matches.reserve(found->second.size());
    for (SceneNode* child : found->second)
        matches.push_back(*child->placeInParent_);
    return matches;
}

void SceneNode::indexChild(SceneNode* child) {
    // Usually the child is the last one and goes to the end; a renamed child finds its
    // place by the order in which the children were appended.
    auto& sameName = childrenByName_[child->name_];
    const auto place = std::upper_bound(
        sameName.begin(), sameName.end(), child->appendOrder_,
        [](std::uint64_t order, const SceneNode* other) { return order < other->appendOrder_; });
    sameName.insert(place, child);
}

void SceneNode::unindexChild(SceneNode* child) {
    unindex(childrenByName_, child);
}

void SceneNode::unindex(NameIndex& index, const SceneNode* node) {
    const auto found = index.find(node->name_);
    if (found == index.end())
        return;
    std::erase(found->second, node);
    if (found->second.empty())
        index.erase(found);
}

} // namespace orrery
