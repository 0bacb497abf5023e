#include "core/app/MenuStatus.h"

namespace orrery {

std::vector<bool> saveMenuStatus(std::vector<bool>& menuArray, const std::vector<bool>& enabled) {
    menuArray = enabled;
    return std::vector<bool>(enabled.size(), false);
}

std::vector<bool> loadMenuStatus(const std::vector<bool>& menuArray, std::size_t count) {
    std::vector<bool> states(count, false);
    for (std::size_t i = 0; i < count && i < menuArray.size(); ++i)
        states[i] = menuArray[i];
    return states;
}

} // namespace orrery
