#include "core/validate/Validators.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

TEST(IsNumber, AcceptsSignedDecimals) {
    for (const char* text : {"5", "-5", "+.5", "0.25", "007", "-0.0", ".5"})
        EXPECT_TRUE(isNumber(text)) << text;
}

TEST(IsNumber, RefusesEverythingElse) {
    for (const char* text : {"5.", "1e3", " 5", "5 ", "1,5", "", "+", "-", ".", "1.2.3", "--5",
                             "0x10", "nan", "5\n6", "\n", "\xD9\xA5" /* an Arabic-Indic five */})
        EXPECT_FALSE(isNumber(text)) << text;
}

TEST(IsNumber, EndOfTextMatchesBeforeOneFinalLineTerminator) {
    // The expression's "$" matches before a line terminator that ends the text.
    EXPECT_TRUE(isNumber("5\n"));
    EXPECT_TRUE(isNumber("5\r\n"));
    EXPECT_TRUE(isNumber("-2.5\xE2\x80\xA8"));
    EXPECT_FALSE(isNumber("5\n\n"));
    EXPECT_FALSE(isNumber("5\t"));
}

TEST(Names, BlankNamesAreRefusedButSpacesAroundAreKept) {
    EXPECT_FALSE(validateAddText(""));
    EXPECT_FALSE(validateAddText("   "));
    EXPECT_FALSE(validateCreatePlanet(" \t "));
    EXPECT_TRUE(validateAddText(" Io "));
    EXPECT_TRUE(validateCreatePlanet("x"));
    EXPECT_EQ(RemoveSpace("\t Io  "), "Io");
    EXPECT_EQ(RemoveSpace("a b"), "a b");
}

struct BoundCase {
    bool (*validator)(std::string_view);
    const char* text;
    bool accepted;
};

void PrintTo(const BoundCase& c, std::ostream* out) {
    *out << '"' << c.text << '"' << (c.accepted ? " accepted" : " refused");
}

class ValidatorBounds : public testing::TestWithParam<BoundCase> {};

TEST_P(ValidatorBounds, AtAndBesideEachBound) {
    const BoundCase& c = GetParam();
    EXPECT_EQ(c.validator(c.text), c.accepted) << c.text;
}

INSTANTIATE_TEST_SUITE_P(
    Radius, ValidatorBounds,
    testing::Values(BoundCase{validatePosRadius, "0.1", true}, // 0.1 compared in single precision
                    BoundCase{validatePosRadius, "0.09", false},
                    // Too small for single precision: zero, not infinity.
                    BoundCase{validatePosRadius, "0.000000000000000000000000000000000000000000001", false},
                    BoundCase{validatePosRadius, "0.10000001", true},
                    BoundCase{validatePosRadius, "0.099999999", true}, // rounds to 0.1f
                    BoundCase{validatePosRadius, "0", false},
                    BoundCase{validatePosRadius, "-1", false},
                    BoundCase{validatePosRadius, "5000", true}));

INSTANTIATE_TEST_SUITE_P(Position, ValidatorBounds,
                         testing::Values(BoundCase{validatePosNegFloat, "-12.5", true},
                                         BoundCase{validatePosNegFloat, "12.", false},
                                         BoundCase{validatePosNegFloat, "1e2", false},
                                         BoundCase{validatePosOnlyFloat, "0", false},
                                         BoundCase{validatePosOnlyFloat, "0.001", true},
                                         BoundCase{validatePosOnlyFloat, "-0.001", false}));

INSTANTIATE_TEST_SUITE_P(
    FieldOfView, ValidatorBounds,
    testing::Values(BoundCase{validateFov, "30", true}, BoundCase{validateFov, "90", true},
                    BoundCase{validateFov, "29.9", false}, BoundCase{validateFov, "90.5", false},
                    BoundCase{validateFov, "95", false}, BoundCase{validateFov, "45.0", true}));

INSTANTIATE_TEST_SUITE_P(Unused, ValidatorBounds,
                         testing::Values(BoundCase{validateOneZeroFloat, "0", true},
                                         BoundCase{validateOneZeroFloat, "1", true},
                                         BoundCase{validateOneZeroFloat, "1.01", false},
                                         BoundCase{validateOneZeroFloat, "-0.01", false},
                                         BoundCase{validatePosNegFloat2, "-360", true},
                                         BoundCase{validatePosNegFloat2, "360", true},
                                         BoundCase{validatePosNegFloat2, "360.5", false},
                                         BoundCase{validatePosNegFloat2, "-361", false}));

} // namespace
} // namespace orrery
