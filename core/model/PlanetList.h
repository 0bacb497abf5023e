#pragma once

#include "core/model/PlanetRecord.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace orrery {

// The planets of the current system in creation order; row i of the table is record i.
// There is no limit on the length and no check that names or identities are unique.
class PlanetList {
public:
    std::size_t size() const { return records_.size(); }
    bool empty() const { return records_.empty(); }
    const PlanetRecord& at(std::size_t index) const { return records_.at(index); }
    const std::vector<PlanetRecord>& records() const { return records_; }
    auto begin() const { return records_.begin(); }
    auto end() const { return records_.end(); }

    void append(PlanetRecord record);
    // At an index from 0 to size(); a larger index changes nothing and answers false.
    bool insert(std::size_t index, PlanetRecord record);
    // Out-of-range indices change nothing and answer false.
    bool replace(std::size_t index, PlanetRecord record);
    bool remove(std::size_t index);
    void clear() { records_.clear(); }
    // Every record at once; returns the records it replaced, for the caller to free where
    // 100,000 of them do not hold up the window.
    std::vector<PlanetRecord> replaceAll(std::vector<PlanetRecord> records) {
        return std::exchange(records_, std::move(records));
    }

    // The first record whose "tsecs" equals the text exactly (what a drag updates).
    std::optional<std::size_t> firstIndexOf(std::string_view tsecs) const;
    // Every such record, in order (what a click in the scene selects).
    std::vector<std::size_t> indicesOf(std::string_view tsecs) const;

    // True when at least one planet is shown, so that there is something to export.
    bool anyVisible() const;

private:
    std::vector<PlanetRecord> records_;
};

} // namespace orrery
