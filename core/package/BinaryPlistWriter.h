#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace orrery {

// Writes a binary property list ("bplist00") one object at a time. Containers refer to
// objects made before them, so the order of creation is an order of the tree, and
// equal texts and UIDs are stored once.
//
// This is our own rather than libplist's writer: libplist 2.2 finds shared objects
// through a hash table of fixed size, and a planet list of 100,000 planets took it 25 s.
class BinaryPlistWriter {
public:
    using Ref = std::uint32_t;

    Ref text(std::string_view value);
    Ref integer(std::int64_t value);
    Ref uid(std::uint64_t value);
    Ref data(std::string_view bytes);
    Ref array(std::span<const Ref> items);
    // Keys must be texts.
    Ref dictionary(std::span<const std::pair<Ref, Ref>> entries);

    // Nodes of the tree below `top` as a reader builds it: a shared object counts at
    // every reference (dictionary keys included). Saturates instead of overflowing.
    std::uint64_t nodeCount(Ref top) const { return nodes_[top]; }

    // The encoded property list with `top` as its root object.
    std::string finish(Ref top) const;

private:
    struct Object {
        bool container;
        bool dictionary;
        std::uint64_t begin; // into leafBytes_ (whole encoded object) or refs_
        std::uint64_t size;  // bytes of a leaf, references of a container
    };

    Ref addLeaf(std::string_view encoded);
    Ref addContainer(bool dictionary, std::span<const Ref> refs, std::uint64_t childNodes);

    std::vector<Object> objects_;
    std::vector<std::uint64_t> nodes_;
    std::string leafBytes_;
    std::vector<Ref> refs_;
    std::unordered_map<std::string, Ref> texts_;
    std::unordered_map<std::uint64_t, Ref> uids_;
};

} // namespace orrery
