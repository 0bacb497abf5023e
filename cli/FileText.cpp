#include "cli/FileText.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace orrery::cli {

namespace fs = std::filesystem;

bool readFileText(const std::string& path, std::size_t maxBytes, std::string& text,
                  std::string& error) {
    std::error_code failure;
    const fs::file_status status = fs::status(path, failure);
    if (!fs::exists(status)) {
        error = "no such file";
        return false;
    }
    if (fs::is_directory(status)) {
        error = "a folder, not a file";
        return false;
    }
    const std::uintmax_t size = fs::file_size(path, failure);
    if (failure || size > maxBytes) {
        error =
            failure ? failure.message() : "larger than " + std::to_string(maxBytes >> 20) + " MB";
        return false;
    }
    std::ifstream in(path, std::ios::binary);
    text.assign(static_cast<std::size_t>(size), '\0');
    if (!in || !in.read(text.data(), static_cast<std::streamsize>(size))) {
        error = "cannot be read";
        return false;
    }
    return true;
}

std::string lowerExtension(const std::string& path) {
    std::string trimmed = path;
    while (trimmed.size() > 1 && trimmed.back() == '/')
        trimmed.pop_back();
    std::string extension = fs::path(trimmed).extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return extension;
}

} // namespace orrery::cli
