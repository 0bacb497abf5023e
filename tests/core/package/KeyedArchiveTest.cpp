#include "PackageTestSupport.h"

#include "core/package/ColorComponents.h"
#include "core/package/KeyedArchiveWriter.h"
#include "core/package/LightColorArchive.h"
#include "core/package/PlanetArchive.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

TEST(KeyedArchive, WriterRefusesWhatTheReaderWouldRefuse) {
    KeyedArchiveWriter writer;
    std::vector<KeyedArchiveWriter::Entry> texts;
    for (int i = 0; i < 100; ++i)
        texts.push_back(writer.text(std::to_string(i)));
    const auto root = writer.array(texts, KeyedArchiveWriter::ArrayClass::mutableArray);
    std::string bytes;
    std::string error;
    EXPECT_FALSE(writer.finish(root, ParseLimits{1u << 20, 150}, bytes, error));
    EXPECT_NE(error.find("property-list nodes"), std::string::npos) << error;
    EXPECT_TRUE(bytes.empty());
}

TEST(KeyedArchive, PlanetListIsNotALightColour) {
    std::string planets;
    std::string error;
    ASSERT_TRUE(encodePlanetArchive(test::sampleDocument(1).planets, planets, error));
    Color read;
    EXPECT_FALSE(decodeLightColorArchive(planets, read, error));
    EXPECT_EQ(error, "the first light colour is not a colour");
}

TEST(ColorComponents, TextRoundTripsExactly_AndOnlyFiniteDecimalsAreRead) {
    for (const Color& color : {Color{0, 0, 1, 1}, Color{0.1, 1.0 / 3.0, 2.0 / 7.0, 0.5},
                               Color{1e-9, 0.999999999, 0.5, 1e-300}}) {
        const auto numbers = parseColorComponents(rgbComponentsText(color));
        ASSERT_TRUE(numbers);
        const double alpha = numbers->size() == 4 ? (*numbers)[3] : 1.0;
        EXPECT_EQ((Color{(*numbers)[0], (*numbers)[1], (*numbers)[2], alpha}), color);
    }
    // Pure blue as an archived colour holds it: no alpha when it is 1, and a closing NUL.
    EXPECT_EQ(rgbComponentsText(kPureBlue), std::string("0 0 1", 6));
    EXPECT_EQ(parseColorComponents(std::string("0.5 +1 2e-1\0\0", 13)),
              (std::vector<double>{0.5, 1, 0.2}));
    for (const char* bad :
         {"nan 0 1", "inf 0 0", "1e400 0 0", "0x1 0 0", "1,5 0 0", "a", "1 2 3 4 5 6"})
        EXPECT_FALSE(parseColorComponents(bad)) << bad;
}

} // namespace
} // namespace orrery
