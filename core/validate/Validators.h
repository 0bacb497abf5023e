#pragma once

#include <string>
#include <string_view>

// The checks every typed value passes before it is stored: table cells, the camera and
// light fields, the creation sheet and the values read from a project package.
namespace orrery {

// Text matching ^[-+]?[0-9]*\.?[0-9]+$ as a regular-expression search: "5", "-5", "+.5"
// and "0.25" pass; "5.", "1e3", " 5", "1,5" and "" fail. As in Perl and ICU
// regular expressions, "$" also matches before one line terminator that ends the text.
bool isNumber(std::string_view text);

// The text without the spaces and tabs at both ends.
std::string RemoveSpace(std::string_view text);

// Names: not empty, and not empty once trimmed.
bool validateAddText(std::string_view text);
bool validateCreatePlanet(std::string_view text);

// Numbers, the value taken in single precision; bounds are inclusive.
bool validatePosNegFloat(std::string_view text);  // any number
bool validatePosRadius(std::string_view text);    // >= 0.1
bool validatePosOnlyFloat(std::string_view text); // > 0
bool validateFov(std::string_view text);          // 30 to 90
bool validateOneZeroFloat(std::string_view text); // 0 to 1
bool validatePosNegFloat2(std::string_view text); // -360 to 360

} // namespace orrery
