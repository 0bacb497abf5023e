// Hostile property lists: everything libplist 2.2 would crash on, loop on or blow up
// with must be refused before it sees the bytes.
#include "PackageTestSupport.h"

#include "core/package/BinaryPlistWriter.h"
#include "core/package/PlanetArchive.h"
#include "core/package/PropertyList.h"

#include <gtest/gtest.h>

#include <random>

namespace orrery {
namespace {

using test::rawArray;
using test::rawBinaryPlist;

constexpr ParseLimits kLimits{1u << 24, 1u << 20};

bool parses(const std::string& bytes, std::string& error) {
    error.clear();
    return parsePropertyList(bytes, kLimits, error) != nullptr;
}

// An empty array wrapped in `levels` arrays, each holding `copies` references to the next.
std::string wrappedArrays(std::size_t levels, std::size_t copies = 1) {
    BinaryPlistWriter writer;
    BinaryPlistWriter::Ref inner = writer.array({});
    for (std::size_t i = 0; i < levels; ++i)
        inner = writer.array(std::vector<BinaryPlistWriter::Ref>(copies, inner));
    return writer.finish(inner);
}

TEST(BinaryPlist, OurWriterEncodesWhatLibplistReadsBack) {
    // Encodings the package files need beyond small values: long lists (the count needs
    // an integer of its own past 15 items), wide references, long data and non-ASCII text.
    BinaryPlistWriter writer;
    std::vector<BinaryPlistWriter::Ref> items;
    for (int i = 0; i < 20; ++i)
        items.push_back(writer.text("item " + std::to_string(i % 4)));
    const std::pair<BinaryPlistWriter::Ref, BinaryPlistWriter::Ref> fields[] = {
        {writer.text("uid"), writer.uid(70000)},
        {writer.text("data"), writer.data(std::string(300, 'x'))},
        {writer.text("items"), writer.array(items)},
        {writer.text("unicode"), writer.text("Ærø ☉ 🪐")},
    };
    std::string error;
    const PlistPtr root =
        parsePropertyList(writer.finish(writer.dictionary(fields)), kLimits, error);
    ASSERT_TRUE(root) << error;
    std::uint64_t number = 0;
    plist_get_uid_val(plist_dict_get_item(root.get(), "uid"), &number);
    EXPECT_EQ(number, 70000u);
    plist_get_data_ptr(plist_dict_get_item(root.get(), "data"), &number);
    EXPECT_EQ(number, 300u);
    const auto read = arrayItems(plist_dict_get_item(root.get(), "items"));
    ASSERT_EQ(read.size(), 20u);
    EXPECT_EQ(stringValue(read[19]), "item 3");
    EXPECT_EQ(stringValue(plist_dict_get_item(root.get(), "unicode")), "Ærø ☉ 🪐");
}

TEST(BinaryPlist, NestingAndSharedContainersAreRefusedBeyondTheLimitsOnly) {
    std::string error;
    EXPECT_TRUE(parses(wrappedArrays(kMaxNestingDepth - 1), error)) << error;
    EXPECT_FALSE(parses(wrappedArrays(kMaxNestingDepth), error));
    EXPECT_NE(error.find("nested deeper than 512"), std::string::npos) << error;
    // Deep enough to overflow libplist's stack had it been handed over.
    EXPECT_FALSE(parses(wrappedArrays(200000), error));
    // Each level refers twice to the one below: 2^levels nodes from a few hundred bytes.
    EXPECT_TRUE(parses(wrappedArrays(10, 2), error)) << error;
    EXPECT_FALSE(parses(wrappedArrays(60, 2), error));
    EXPECT_NE(error.find("expands to more than"), std::string::npos) << error;
}

TEST(BinaryPlist, CyclesAndStrayReferencesAreRefused) {
    std::string error;
    EXPECT_FALSE(parses(rawBinaryPlist({rawArray({1}), rawArray({0})}), error));
    EXPECT_NE(error.find("contains itself"), std::string::npos) << error;
    EXPECT_FALSE(parses(rawBinaryPlist({rawArray({0})}), error));
    EXPECT_FALSE(parses(rawBinaryPlist({rawArray({5}), rawArray({})}), error));
    EXPECT_NE(error.find("refers to object 5"), std::string::npos) << error;
    // A dictionary whose key is an array.
    EXPECT_FALSE(parses(rawBinaryPlist({"\xD1\x01\x01", rawArray({})}), error));
    EXPECT_NE(error.find("is not text"), std::string::npos) << error;
    // Objects of types no package holds (a set, an unknown marker).
    EXPECT_FALSE(parses(rawBinaryPlist({"\xC0"}), error));
    EXPECT_FALSE(parses(rawBinaryPlist({"\x70"}), error));
}

TEST(BinaryPlist, DamagedTrailersAreRefused) {
    const std::string good = rawBinaryPlist({rawArray({1}), "\x51x"});
    std::string error;
    ASSERT_TRUE(parses(good, error)) << error;
    const std::size_t trailer = good.size() - 32;
    const auto patched = [&](std::size_t at, char value) {
        std::string bytes = good;
        bytes[at] = value;
        return bytes;
    };
    EXPECT_FALSE(parses(patched(trailer + 6, 0), error));       // offset size 0
    EXPECT_FALSE(parses(patched(trailer + 7, 9), error));       // reference size 9
    EXPECT_FALSE(parses(patched(trailer + 15, 100), error));    // more objects than the table
    EXPECT_FALSE(parses(patched(trailer + 23, 2), error));      // root beyond the objects
    EXPECT_FALSE(parses(patched(trailer + 31, 120), error));    // table beyond the file
    EXPECT_FALSE(parses(patched(trailer + 16, 1), error));      // a root index of 2^56
    EXPECT_FALSE(parses(patched(good.size() - 34, 60), error)); // an object beyond the area
    EXPECT_NE(error.find("damaged"), std::string::npos) << error;
}

TEST(BinaryPlist, TruncatedCorruptedOrRandomBytesEndInAnErrorOrAList) {
    std::string bytes;
    std::string error;
    ASSERT_TRUE(encodePlanetArchive(test::sampleDocument(3).planets, bytes, error));
    std::vector<PlanetRecord> planets;
    // Decodes; a refusal must say why.
    const auto decodes = [&](const std::string& damaged) {
        error.clear();
        const bool decoded = decodePlanetArchive(damaged, planets, error);
        EXPECT_TRUE(decoded || !error.empty());
        return decoded;
    };
    for (std::size_t length = 0; length < bytes.size(); ++length)
        EXPECT_FALSE(decodes(bytes.substr(0, length))) << length;
    // Under the sanitizers this finds any read out of bounds a damaged byte can cause.
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        for (unsigned char value : {0x00, 0x0F, 0x5F, 0x80, 0xAF, 0xDF, 0xFF}) {
            std::string damaged = bytes;
            damaged[at] = static_cast<char>(value);
            decodes(damaged);
        }
    }
    std::mt19937 random(7);
    for (int round = 0; round < 200; ++round) {
        std::string noise(1 + random() % 512, '\0');
        for (char& c : noise)
            c = static_cast<char>(random());
        if (round % 2 == 0)
            noise.replace(0, std::min<std::size_t>(8, noise.size()), "bplist00");
        EXPECT_FALSE(decodes(noise)) << round;
    }
}

TEST(XmlPlist, DeepNestingIsRefusedBeforeParsing) {
    const auto nested = [](std::size_t depth) {
        std::string xml = "<?xml version=\"1.0\"?>\n<plist version=\"1.0\">";
        for (std::size_t i = 0; i < depth; ++i)
            xml += "<array>";
        for (std::size_t i = 0; i < depth; ++i)
            xml += "</array>";
        return xml + "</plist>";
    };
    std::string error;
    EXPECT_TRUE(parses(nested(kMaxNestingDepth), error)) << error;
    EXPECT_FALSE(parses(nested(kMaxNestingDepth + 1), error));
    EXPECT_NE(error.find("nested deeper"), std::string::npos) << error;
    EXPECT_FALSE(parses(nested(1000000), error));
    // Tags inside comments, CDATA and quoted attributes do not nest, and are not missed.
    EXPECT_TRUE(parses("<plist><!-- <array><array> --><array a=\"<array>\"><string><![CDATA["
                       "<array>]]></string></array></plist>",
                       error))
        << error;
    EXPECT_FALSE(parses("<plist><array><!-- </array>", error));
    EXPECT_NE(error.find("comment is not closed"), std::string::npos) << error;
}

TEST(PropertyList, SizeAndElementLimitsHoldBeforeParsing) {
    std::string error;
    const std::string xml = "<plist><array>" + std::string(100, ' ') + "</array></plist>";
    EXPECT_FALSE(parsePropertyList(xml, ParseLimits{50, 100}, error));
    EXPECT_NE(error.find("larger than 50 bytes"), std::string::npos) << error;
    std::string many = "<plist><array>";
    for (int i = 0; i < 200; ++i)
        many += "<true/>";
    EXPECT_FALSE(parsePropertyList(many + "</array></plist>", ParseLimits{1u << 20, 100}, error));
    EXPECT_FALSE(parses("", error));
    EXPECT_EQ(error, "the file is empty");
}

} // namespace
} // namespace orrery
