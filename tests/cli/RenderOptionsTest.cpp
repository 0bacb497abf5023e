#include "cli/RenderOptions.h"

#include <gtest/gtest.h>

namespace orrery::cli {
namespace {

std::optional<RenderOptions> parse(std::vector<std::string> arguments,
                                   std::string* error = nullptr) {
    std::string message;
    std::optional<RenderOptions> options = parseRenderOptions(arguments, message);
    if (error)
        *error = message;
    return options;
}

TEST(RenderOptions, DefaultsAndAnyOrder) {
    const std::optional<RenderOptions> plain = parse({"Sun.kvx", "-o", "sun.png"});
    ASSERT_TRUE(plain);
    EXPECT_EQ(plain->package, "Sun.kvx");
    EXPECT_EQ(plain->format, ExportFormat::png);
    EXPECT_EQ(plain->scale, 1.0);
    EXPECT_EQ(plain->quality, 85);
    EXPECT_FALSE(plain->includeBackground);

    const std::optional<RenderOptions> all =
        parse({"--quality", "0", "-o", "out/Sun.JPEG", "--include-background", "--scale", "1.5",
               "Sun.kvx"});
    ASSERT_TRUE(all);
    EXPECT_EQ(all->output, "out/Sun.JPEG");
    EXPECT_EQ(all->format, ExportFormat::jpeg);
    EXPECT_EQ(all->scale, 1.5);
    EXPECT_EQ(all->quality, 0);
    EXPECT_TRUE(all->includeBackground);
}

TEST(RenderOptions, EveryNumberIsChecked) {
    for (const char* scale : {"0", "-1", "8.01", "abc", "2x", "", "nan", "inf", "1e999", " 2"})
        EXPECT_FALSE(parse({"a.kvx", "-o", "a.png", "--scale", scale})) << scale;
    for (const char* scale : {"8", "0.25", "2"})
        EXPECT_TRUE(parse({"a.kvx", "-o", "a.png", "--scale", scale})) << scale;
    for (const char* quality : {"101", "-1", "50.5", "", "ten"})
        EXPECT_FALSE(parse({"a.kvx", "-o", "a.jpg", "--quality", quality})) << quality;
}

TEST(RenderOptions, UsageMistakesAreNamed) {
    const std::pair<std::vector<std::string>, std::string> cases[] = {
        {{"a.kvx"}, "render needs an output file: -o FILE"},
        {{"a.kvx", "-o"}, "-o needs a value"},
        {{"a.kvx", "-o", "a.png", "--transparent"}, "render has no option --transparent"},
        {{"a.kvx", "-o", "a.png", "--scale", "0"},
         "--scale needs a number above 0 and at most 8, not \"0\""},
    };
    for (const auto& [arguments, message] : cases) {
        std::string error;
        EXPECT_FALSE(parse(arguments, &error));
        EXPECT_EQ(error, message);
    }
    std::string error;
    EXPECT_FALSE(parse({"a.kvx", "-o", "a.webp"}, &error));
    EXPECT_NE(error.find(".bmp .gif .jpg .jpeg .jp2 .png .tif .tiff"), std::string::npos);
}

TEST(RenderOptions, ScaledSidesRoundToThePixel) {
    EXPECT_EQ(scaledSide(960, 1.0), 960);
    EXPECT_EQ(scaledSide(961, 0.5), 481); // 480.5 rounds up
    EXPECT_EQ(scaledSide(960, 0.3), 288); // 287.99999... is still 288
    EXPECT_EQ(scaledSide(401, 0.001), 0);
}

} // namespace
} // namespace orrery::cli
