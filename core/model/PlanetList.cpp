#include "core/model/PlanetList.h"

#include <algorithm>

namespace orrery {

void PlanetList::append(PlanetRecord record) {
    records_.push_back(std::move(record));
}

bool PlanetList::replace(std::size_t index, PlanetRecord record) {
    if (index >= records_.size())
        return false;
    records_[index] = std::move(record);
    return true;
}

bool PlanetList::insert(std::size_t index, PlanetRecord record) {
    if (index > records_.size())
        return false;
    records_.insert(records_.begin() + static_cast<std::ptrdiff_t>(index), std::move(record));
    return true;
}

bool PlanetList::remove(std::size_t index) {
    if (index >= records_.size())
        return false;
    records_.erase(records_.begin() + static_cast<std::ptrdiff_t>(index));
    return true;
}

std::optional<std::size_t> PlanetList::firstIndexOf(std::string_view tsecs) const {
    for (std::size_t i = 0; i < records_.size(); ++i)
        if (records_[i].tsecs == tsecs)
            return i;
    return std::nullopt;
}

std::vector<std::size_t> PlanetList::indicesOf(std::string_view tsecs) const {
    std::vector<std::size_t> indices;
    for (std::size_t i = 0; i < records_.size(); ++i)
        if (records_[i].tsecs == tsecs)
            indices.push_back(i);
    return indices;
}

bool PlanetList::anyVisible() const {
    return std::any_of(records_.begin(), records_.end(), isShown);
}

} // namespace orrery
