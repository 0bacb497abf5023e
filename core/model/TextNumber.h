#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Values the user types stay text until they are used; these helpers are the one place
// where text turns into numbers and numbers back into text. They never depend on the
// process locale: a German desktop must still write "0.500000", never "0,500000".
namespace orrery {

// The plain single-precision conversion: leading white space is skipped and the longest
// leading decimal number (sign, digits, fraction, exponent) is used; text without one
// gives 0. "0.0f" is 0, "12abc" is 12, "abc" is 0. Too large a number gives +/-infinity.
float floatValue(std::string_view text);

// The whole-number conversion: leading white space, an optional sign and the leading
// digits; 0 when there are none. Saturates at the limits of the type.
std::int64_t integerValue(std::string_view text);

// True when the text is a whole number and nothing else: an optional sign and digits.
bool isInteger(std::string_view text);

// printf's "%f", "%0.1f" and "%0.0f": fixed notation with that many decimals.
std::string formatFixed(double value, int decimals);
inline std::string formatF(double value) {
    return formatFixed(value, 6);
}

// The text of a dragged position: general format with at most 7 significant digits and
// no trailing zeros (12.5 gives "12.5", 100 gives "100").
std::string formatGeneral(float value);

} // namespace orrery
