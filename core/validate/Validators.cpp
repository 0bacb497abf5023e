#include "core/validate/Validators.h"

#include "core/model/TextNumber.h"

namespace orrery {
namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// The line terminators before which "$" still matches at the end of the text.
std::string_view withoutFinalLineTerminator(std::string_view text) {
    for (std::string_view ending :
         {"\r\n", "\n", "\r", "\v", "\f", "\xC2\x85", "\xE2\x80\xA8", "\xE2\x80\xA9"}) {
        if (text.size() >= ending.size() && text.substr(text.size() - ending.size()) == ending)
            return text.substr(0, text.size() - ending.size());
    }
    return text;
}

// [-+]?[0-9]*\.?[0-9]+ over the whole text: a sign, then digits, or digits, a point and
// at least one digit.
bool matchesNumberBody(std::string_view text) {
    if (!text.empty() && (text.front() == '+' || text.front() == '-'))
        text.remove_prefix(1);
    std::size_t i = 0;
    while (i < text.size() && isDigit(text[i]))
        ++i;
    if (i == text.size())
        return i > 0;
    if (text[i] != '.')
        return false;
    std::size_t fraction = 0;
    for (++i; i < text.size(); ++i, ++fraction)
        if (!isDigit(text[i]))
            return false;
    return fraction > 0;
}

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

} // namespace

bool isNumber(std::string_view text) {
    if (text.empty())
        return false;
    return matchesNumberBody(text) || matchesNumberBody(withoutFinalLineTerminator(text));
}

std::string RemoveSpace(std::string_view text) {
    std::size_t begin = 0;
    std::size_t end = text.size();
    while (begin < end && isBlank(text[begin]))
        ++begin;
    while (end > begin && isBlank(text[end - 1]))
        --end;
    return std::string(text.substr(begin, end - begin));
}

bool validateAddText(std::string_view text) {
    return !text.empty() && !RemoveSpace(text).empty();
}

bool validateCreatePlanet(std::string_view text) {
    return validateAddText(text);
}

bool validatePosNegFloat(std::string_view text) {
    return isNumber(text);
}

bool validatePosRadius(std::string_view text) {
    return isNumber(text) && floatValue(text) >= 0.1f;
}

bool validatePosOnlyFloat(std::string_view text) {
    return isNumber(text) && floatValue(text) > 0.0f;
}

bool validateFov(std::string_view text) {
    if (!isNumber(text))
        return false;
    const float f = floatValue(text);
    return f >= 30.0f && f <= 90.0f;
}

bool validateOneZeroFloat(std::string_view text) {
    if (!isNumber(text))
        return false;
    const float f = floatValue(text);
    return f >= 0.0f && f <= 1.0f;
}

bool validatePosNegFloat2(std::string_view text) {
    if (!isNumber(text))
        return false;
    const float f = floatValue(text);
    return f >= -360.0f && f <= 360.0f;
}

} // namespace orrery
