#pragma once

#include <filesystem>
#include <string_view>

// Where a save panel's choice is written. A typed name is a file name, whatever dots it
// holds: "Earth 2.0" is saved as "Earth 2.0.kvx" (or "Earth 2.0.png"). A package is a
// document and never a folder to save into, so a choice inside a package is moved out to
// stand beside the outermost package on its way.
namespace orrery {

// The path with ".extension" added unless its name already ends in it (in any case).
std::filesystem::path withExtension(const std::filesystem::path& chosen,
                                    std::string_view extension);

// The chosen path with every package folder on its way left out: "A.kvx/B.kvx" becomes
// "B.kvx" beside "A.kvx".
std::filesystem::path outsidePackages(const std::filesystem::path& chosen,
                                      std::string_view packageExtension);

// Both rules: the file a save panel's choice names.
std::filesystem::path saveTarget(const std::filesystem::path& chosen, std::string_view extension,
                                 std::string_view packageExtension);

} // namespace orrery
