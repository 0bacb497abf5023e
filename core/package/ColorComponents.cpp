#include "core/package/ColorComponents.h"

#include <charconv>
#include <cmath>

namespace orrery {
namespace {

bool isSeparator(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

// More numbers than any colour space has means the text is not a colour.
constexpr std::size_t kMaxComponents = 5;

void appendNumber(std::string& out, double value) {
    char buffer[32];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    out.append(buffer, result.ptr);
}

} // namespace

std::optional<std::vector<double>> parseColorComponents(std::string_view text) {
    while (!text.empty() && text.back() == '\0')
        text.remove_suffix(1);
    std::vector<double> numbers;
    std::size_t i = 0;
    while (i < text.size()) {
        if (isSeparator(text[i])) {
            ++i;
            continue;
        }
        std::size_t end = i;
        while (end < text.size() && !isSeparator(text[end]))
            ++end;
        const std::string_view token = text.substr(i, end - i);
        // from_chars takes no leading '+', which a hand-written file might carry.
        const std::string_view digits = token.starts_with('+') ? token.substr(1) : token;
        double value = 0.0;
        const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
        if (result.ec != std::errc() || result.ptr != digits.data() + digits.size() ||
            !std::isfinite(value) || numbers.size() == kMaxComponents)
            return std::nullopt;
        numbers.push_back(value);
        i = end;
    }
    return numbers;
}

std::string rgbComponentsText(const Color& color) {
    std::string text;
    appendNumber(text, color.red);
    text.push_back(' ');
    appendNumber(text, color.green);
    text.push_back(' ');
    appendNumber(text, color.blue);
    if (color.alpha != 1.0) {
        text.push_back(' ');
        appendNumber(text, color.alpha);
    }
    text.push_back('\0');
    return text;
}

} // namespace orrery
