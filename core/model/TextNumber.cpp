#include "core/model/TextNumber.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace orrery {
namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
bool isLeadingSpace(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f';
}

std::string_view skipLeadingSpace(std::string_view text) {
    std::size_t i = 0;
    while (i < text.size() && isLeadingSpace(text[i]))
        ++i;
    return text.substr(i);
}

// Length of the longest leading decimal number of text (after the sign), 0 when none.
std::size_t decimalNumberLength(std::string_view text) {
    std::size_t i = 0;
    std::size_t digits = 0;
    while (i < text.size() && isDigit(text[i])) {
        ++i;
        ++digits;
    }
    if (i < text.size() && text[i] == '.') {
        std::size_t j = i + 1;
        std::size_t fraction = 0;
        while (j < text.size() && isDigit(text[j])) {
            ++j;
            ++fraction;
        }
        if (digits + fraction > 0) {
            i = j;
            digits += fraction;
        }
    }
    if (digits == 0)
        return 0;
    if (i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
        std::size_t j = i + 1;
        if (j < text.size() && (text[j] == '+' || text[j] == '-'))
            ++j;
        if (j < text.size() && isDigit(text[j])) {
            while (j < text.size() && isDigit(text[j]))
                ++j;
            i = j;
        }
    }
    return i;
}

// The power of ten of a decimal number's first significant digit (12.5 gives 1, 0.003
// gives -3, 4e-2 gives -2), saturated far beyond any float; 0 for a number without one.
long long decimalExponent(std::string_view number) {
    const std::size_t mantissaEnd = std::min(number.find_first_of("eE"), number.size());
    const std::string_view mantissa = number.substr(0, mantissaEnd);
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    const std::size_t first = mantissa.find_first_of("123456789");
    if (first == std::string_view::npos)
        return 0;
    long long exponent = first < point ? static_cast<long long>(point - first) - 1
                                       : static_cast<long long>(point) - static_cast<long long>(first);
    if (mantissaEnd < number.size()) {
        constexpr long long limit = 1'000'000;
        long long written = 0;
        for (char c : number.substr(mantissaEnd + 1))
            if (isDigit(c))
                written = std::min(limit, written * 10 + (c - '0'));
        exponent += number[mantissaEnd + 1] == '-' ? -written : written;
    }
    return exponent;
}

} // namespace

float floatValue(std::string_view text) {
    text = skipLeadingSpace(text);
    bool negative = false;
    if (!text.empty() && (text.front() == '+' || text.front() == '-')) {
        negative = text.front() == '-';
        text.remove_prefix(1);
    }
    const std::size_t length = decimalNumberLength(text);
    if (length == 0)
        return 0.0f;
    float value = 0.0f;
    const auto [end, error] = std::from_chars(text.data(), text.data() + length, value);
    if (error == std::errc::result_out_of_range)
        // from_chars leaves the value alone: the number is either too large or too small
        // for single precision, which its order of magnitude tells.
        value = decimalExponent(text.substr(0, length)) < 0 ? 0.0f
                                                             : std::numeric_limits<float>::infinity();
    (void)end;
    return negative ? -value : value;
}

std::int64_t integerValue(std::string_view text) {
    text = skipLeadingSpace(text);
    bool negative = false;
    if (!text.empty() && (text.front() == '+' || text.front() == '-')) {
        negative = text.front() == '-';
        text.remove_prefix(1);
    }
    constexpr std::int64_t max = std::numeric_limits<std::int64_t>::max();
    std::int64_t value = 0;
    for (char c : text) {
        if (!isDigit(c))
            break;
        const int digit = c - '0';
        if (value > (max - digit) / 10)
            return negative ? std::numeric_limits<std::int64_t>::min() : max;
        value = value * 10 + digit;
    }
    return negative ? -value : value;
}

bool isInteger(std::string_view text) {
    if (!text.empty() && (text.front() == '+' || text.front() == '-'))
        text.remove_prefix(1);
    if (text.empty())
        return false;
    for (char c : text)
        if (!isDigit(c))
            return false;
    return true;
}

std::string formatFixed(double value, int decimals) {
    if (std::isnan(value))
        return "nan";
    if (std::isinf(value))
        return value < 0 ? "-inf" : "inf";
    char buffer[512];
    const auto [end, error] =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, decimals);
    if (error != std::errc())
        return "0";
    return std::string(buffer, end);
}

std::string formatGeneral(float value) {
    if (std::isnan(value))
        return "nan";
    if (std::isinf(value))
        return value < 0 ? "-inf" : "inf";
    char buffer[64];
    const auto [end, error] =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 7);
    if (error != std::errc())
        return "0";
    std::string text(buffer, end);
    return text == "-0" ? "0" : text;
}

} // namespace orrery
