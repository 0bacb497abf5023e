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

// A chain of `depth` arrays, each holding the next; the innermost is empty.
std::string nestedArrays(std::size_t depth) {
    BinaryPlistWriter writer;
    BinaryPlistWriter::Ref inner = writer.array({});
    for (std::size_t i = 1; i < depth; ++i) {
        const BinaryPlistWriter::Ref items[] = {inner};
        inner = writer.array(items);
    }
    return writer.finish(inner);
}

TEST(BinaryPlist, OurWriterEncodesWhatLibplistReadsBack) {
    BinaryPlistWriter writer;
    std::vector<BinaryPlistWriter::Ref> items;
    for (int i = 0; i < 20; ++i) // past 15 items the count needs an integer of its own
        items.push_back(writer.text("item " + std::to_string(i % 4)));
    const std::pair<BinaryPlistWriter::Ref, BinaryPlistWriter::Ref> fields[] = {
        {writer.text("ascii"), writer.text("plain")},
        {writer.text("unicode"), writer.text("Ærø ☉ 🪐")},
        {writer.text("negative"), writer.integer(-5)},
        {writer.text("large"), writer.integer(100000)},
        {writer.text("uid"), writer.uid(70000)},
        {writer.text("data"), writer.data(std::string(300, 'x'))},
        {writer.text("items"), writer.array(items)},
    };
    std::string error;
    const PlistPtr root =
        parsePropertyList(writer.finish(writer.dictionary(fields)), kLimits, error);
    ASSERT_TRUE(root) << error;
    EXPECT_EQ(stringValue(plist_dict_get_item(root.get(), "unicode")), "Ærø ☉ 🪐");
    std::uint64_t number = 0;
    plist_get_uint_val(plist_dict_get_item(root.get(), "negative"), &number);
    EXPECT_EQ(static_cast<std::int64_t>(number), -5);
    plist_get_uint_val(plist_dict_get_item(root.get(), "large"), &number);
    EXPECT_EQ(number, 100000u);
    plist_get_uid_val(plist_dict_get_item(root.get(), "uid"), &number);
    EXPECT_EQ(number, 70000u);
    std::uint64_t length = 0;
    plist_get_data_ptr(plist_dict_get_item(root.get(), "data"), &length);
    EXPECT_EQ(length, 300u);
    const auto read = arrayItems(plist_dict_get_item(root.get(), "items"));
    ASSERT_EQ(read.size(), 20u);
    EXPECT_EQ(stringValue(read[19]), "item 3");
}

TEST(BinaryPlist, NestingIsRefusedBeyondTheLimitOnly) {
    std::string error;
    EXPECT_TRUE(parses(nestedArrays(kMaxNestingDepth), error)) << error;
    EXPECT_FALSE(parses(nestedArrays(kMaxNestingDepth + 1), error));
    EXPECT_NE(error.find("nested deeper than 512"), std::string::npos) << error;
    // Deep enough to overflow libplist's stack had it been handed over.
    EXPECT_FALSE(parses(nestedArrays(200000), error));
}

TEST(BinaryPlist, SharedContainersAreCountedAtEveryUse) {
    // Each level refers twice to the one below: 2^levels nodes from a few hundred bytes.
    const auto doubling = [](int levels) {
        BinaryPlistWriter writer;
        BinaryPlistWriter::Ref inner = writer.array({});
        for (int i = 0; i < levels; ++i) {
            const BinaryPlistWriter::Ref pair[] = {inner, inner};
            inner = writer.array(pair);
        }
        return writer.finish(inner);
    };
    std::string error;
    EXPECT_TRUE(parses(doubling(10), error)) << error;
    EXPECT_FALSE(parses(doubling(60), error));
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

TEST(BinaryPlist, EveryTruncationAndEveryCorruptedByteEndsInAnErrorOrAList) {
    std::string bytes;
    std::string error;
    ASSERT_TRUE(encodePlanetArchive(test::sampleDocument(3).planets, bytes, error));
    std::vector<PlanetRecord> planets;
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        EXPECT_FALSE(decodePlanetArchive(bytes.substr(0, length), planets, error));
        EXPECT_FALSE(error.empty());
    }
    // Under the sanitizers this finds any read out of bounds a damaged byte can cause.
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        for (unsigned char value : {0x00, 0x0F, 0x5F, 0x80, 0xAF, 0xDF, 0xFF}) {
            std::string damaged = bytes;
            damaged[at] = static_cast<char>(value);
            error.clear();
            if (!decodePlanetArchive(damaged, planets, error)) {
                EXPECT_FALSE(error.empty());
            }
        }
    }
}

TEST(BinaryPlist, RandomBytesAreRefused) {
    std::mt19937 random(7);
    std::vector<PlanetRecord> planets;
    for (int round = 0; round < 200; ++round) {
        std::string bytes(1 + random() % 512, '\0');
        for (char& c : bytes)
            c = static_cast<char>(random());
        if (round % 2 == 0)
            bytes.replace(0, std::min<std::size_t>(8, bytes.size()), "bplist00");
        std::string error;
        EXPECT_FALSE(decodePlanetArchive(bytes, planets, error));
        EXPECT_FALSE(error.empty());
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
