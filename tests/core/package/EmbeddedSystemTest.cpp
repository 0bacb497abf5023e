#include "core/package/EmbeddedSystem.h"
#include "core/package/PackageJson.h"
#include "core/package/ProjectSettings.h"
#include "tests/core/package/PackageTestSupport.h"

#include <gtest/gtest.h>
#include <zlib.h>

#include <algorithm>

namespace orrery::test {
namespace {

using Bytes = std::vector<std::uint8_t>;

void append(Bytes& to, std::string_view text) {
    to.insert(to.end(), text.begin(), text.end());
}

void appendNumber(Bytes& to, std::uint32_t value, int size) {
    for (int i = size - 1; i >= 0; --i)
        to.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

void pngChunk(Bytes& png, std::string_view type, const Bytes& data) {
    appendNumber(png, static_cast<std::uint32_t>(data.size()), 4);
    Bytes body;
    append(body, type);
    body.insert(body.end(), data.begin(), data.end());
    png.insert(png.end(), body.begin(), body.end());
    appendNumber(
        png, static_cast<std::uint32_t>(crc32(0, body.data(), static_cast<uInt>(body.size()))), 4);
}

// A PNG skeleton: the reader looks at text chunks only. Long values go into zTXt.
Bytes png(const std::vector<PictureText>& fields) {
    Bytes png{0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n'};
    for (const PictureText& field : fields) {
        Bytes data;
        append(data, field.key);
        data.push_back(0);
        data.push_back(0);
        uLongf size = compressBound(static_cast<uLong>(field.value.size()));
        Bytes packed(size);
        compress(packed.data(), &size, reinterpret_cast<const Bytef*>(field.value.data()),
                 static_cast<uLong>(field.value.size()));
        data.insert(data.end(), packed.begin(), packed.begin() + static_cast<std::ptrdiff_t>(size));
        pngChunk(png, "zTXt", data);
    }
    pngChunk(png, "IEND", {});
    return png;
}

// Comment segments "key: value", then the start of scan.
Bytes jpeg(const std::vector<PictureText>& fields) {
    Bytes jpeg{0xff, 0xd8};
    for (const PictureText& field : fields) {
        const std::string comment = field.key + ": " + field.value;
        jpeg.insert(jpeg.end(), {0xff, 0xfe});
        appendNumber(jpeg, static_cast<std::uint32_t>(comment.size() + 2), 2);
        append(jpeg, comment);
    }
    jpeg.insert(jpeg.end(), {0xff, 0xda, 0x00, 0x02});
    return jpeg;
}

// A big-endian TIFF whose only directory entry is the description.
Bytes tiff(const PictureText& field) {
    const std::string text = field.key + ": " + field.value;
    Bytes tiff{'M', 'M', 0, 42, 0, 0, 0, 8, 0, 1, 1, 14, 0, 2};
    appendNumber(tiff, static_cast<std::uint32_t>(text.size() + 1), 4);
    appendNumber(tiff, 26, 4);
    appendNumber(tiff, 0, 4);
    append(tiff, text);
    tiff.push_back(0);
    return tiff;
}

std::string jsonOf(const OpenedProject& project) {
    return packageJson(project, false).dump();
}

std::string reopened(const Bytes& picture) {
    OpenedProject project;
    std::string error;
    EXPECT_TRUE(systemFromPicture(picture, project, error)) << error;
    return jsonOf(project);
}

std::string refusal(const Bytes& picture) {
    OpenedProject project;
    std::string error;
    EXPECT_FALSE(systemFromPicture(picture, project, error));
    return error;
}

TEST(EmbeddedSystem, EveryKindOfPictureGivesTheSystemBack_InAsciiWhateverTheScript) {
    // 800 planets take several JPEG comment segments.
    const OpenedProject project = openedProject(sampleDocument(800));
    const std::vector<PictureText> whole = systemTextFields(project, ExportFormat::png);
    ASSERT_EQ(whole.size(), 1u);
    EXPECT_TRUE(std::all_of(whole[0].value.begin(), whole[0].value.end(),
                            [](char c) { return static_cast<unsigned char>(c) < 0x80; }));
    const std::vector<PictureText> pieces = systemTextFields(project, ExportFormat::jpeg);
    ASSERT_GT(pieces.size(), 2u);

    EXPECT_EQ(reopened(png(whole)), jsonOf(project));
    EXPECT_EQ(reopened(tiff(whole[0])), jsonOf(project));
    // Other programs' comments around ours, and pieces in any order.
    std::vector<PictureText> mixed{{"", "made with care"}};
    mixed.insert(mixed.end(), pieces.rbegin(), pieces.rend());
    EXPECT_EQ(reopened(jpeg(mixed)), jsonOf(project));
    EXPECT_EQ(reopened(png({{"Comment", "x"}, whole[0]})), jsonOf(project));
}

TEST(EmbeddedSystem, PicturesWithoutAWholeSystemAreRefused) {
    const OpenedProject project = openedProject(sampleDocument(800));
    std::vector<PictureText> pieces = systemTextFields(project, ExportFormat::jpeg);
    EXPECT_EQ(refusal(png({{"Comment", "a picture"}})), "this picture carries no system");
    pieces.erase(pieces.begin() + 1);
    EXPECT_EQ(refusal(jpeg(pieces)), "this picture carries no system");
    EXPECT_EQ(refusal(png({{"orrery.system", R"({"document": 3})"}})),
              "the system in this picture is damaged: document must be an object");
    EXPECT_EQ(refusal({'G', 'I', 'F', '8', '9', 'a', 0, 0}),
              "neither a package nor a PNG, TIFF or JPEG picture");
    // Cut short anywhere before its end chunk, the picture is refused, never read past its end.
    const Bytes whole = png(systemTextFields(project, ExportFormat::png));
    for (std::size_t size = 0; size + 12 < whole.size(); size += 997) {
        OpenedProject ignored;
        std::string error;
        EXPECT_FALSE(systemFromPicture(
            Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)), ignored,
            error));
    }
}

} // namespace
} // namespace orrery::test
