#include "core/app/SaveTarget.h"

#include <algorithm>
#include <cctype>
#include <string>

namespace orrery {
namespace {

bool endsWithExtension(const std::string& name, std::string_view extension) {
    if (name.size() <= extension.size() + 1 || name[name.size() - extension.size() - 1] != '.')
        return false;
    return std::equal(extension.begin(), extension.end(), name.end() - extension.size(),
                      [](char a, char b) {
                          return std::tolower(static_cast<unsigned char>(a)) ==
                                 std::tolower(static_cast<unsigned char>(b));
                      });
}

} // namespace

std::filesystem::path withExtension(const std::filesystem::path& chosen,
                                    std::string_view extension) {
    std::filesystem::path target = chosen;
    if (!target.has_filename())
        target = target.parent_path();
    const std::string name = target.filename().string();
    if (endsWithExtension(name, extension))
        return target;
    return target.parent_path() / (name + '.' + std::string(extension));
}

std::filesystem::path outsidePackages(const std::filesystem::path& chosen,
                                      std::string_view packageExtension) {
    std::filesystem::path folder;
    for (const std::filesystem::path& part : chosen.parent_path()) {
        if (endsWithExtension(part.string(), packageExtension))
            break;
        folder /= part;
    }
    return folder / chosen.filename();
}

std::filesystem::path saveTarget(const std::filesystem::path& chosen, std::string_view extension,
                                 std::string_view packageExtension) {
    return outsidePackages(withExtension(chosen, extension), packageExtension);
}

} // namespace orrery
