#include "tools/surfaces/SurfaceGenerator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

namespace orrery::surfaces {
namespace {

// The whole set is drawn once, small, and shared by the tests below; the pictures only
// depend on the size, so what holds here holds for the shipped files.
constexpr int kWidth = 128;
constexpr int kHeight = 64;

const std::vector<Image>& smallSurfaces() {
    static const std::vector<Image> images = renderAllSurfaces(kWidth, kHeight, 2);
    return images;
}

double luma(const Image& image, int x, int y) {
    const std::uint8_t* p = image.pixel(x, y);
    return 0.2126 * p[0] + 0.7152 * p[1] + 0.0722 * p[2];
}

// Mean absolute difference of two columns, over all channels and rows.
double columnDifference(const Image& image, int a, int b) {
    double sum = 0.0;
    for (int y = 0; y < image.height; ++y)
        for (int c = 0; c < 3; ++c)
            sum += std::abs(image.pixel(a, y)[c] - image.pixel(b, y)[c]);
    return sum / (3.0 * image.height);
}

// Mean luminance step between neighbouring pixels of a row: along the row, or from the
// row to the next one down.
double rowRoughness(const Image& image, int y) {
    double sum = 0.0;
    for (int x = 0; x < image.width; ++x)
        sum += std::abs(luma(image, x, y) - luma(image, (x + 1) % image.width, y));
    return sum / image.width;
}
double downRoughness(const Image& image, int y) {
    double sum = 0.0;
    for (int x = 0; x < image.width; ++x)
        sum += std::abs(luma(image, x, y) - luma(image, x, y + 1));
    return sum / image.width;
}

TEST(SurfaceRecipes, FortyEightNamedSurfaces) {
    const auto& recipes = surfaceRecipes();
    ASSERT_EQ(recipes.size(), 48u);
    std::set<std::string> names;
    for (const SurfaceRecipe& r : recipes) {
        EXPECT_FALSE(r.name.empty());
        names.insert(r.name);
    }
    EXPECT_EQ(names.size(), 48u);
    EXPECT_TRUE(renderSurface(0, 16, 8).isNull());
    EXPECT_TRUE(renderSurface(49, 16, 8).isNull());
    EXPECT_TRUE(renderSurface(1, 0, 8).isNull());
}

TEST(RenderSurface, OpaqueAndTheRequestedSize) {
    const Image image = renderSurface(5, 40, 20);
    ASSERT_EQ(image.width, 40);
    ASSERT_EQ(image.height, 20);
    for (std::size_t i = 3; i < image.pixels.size(); i += 4)
        ASSERT_EQ(image.pixels[i], 255);
}

TEST(RenderSurface, SameBytesEveryTimeWhateverTheWorkers) {
    const std::vector<Image> one = renderAllSurfaces(24, 12, 1);
    const std::vector<Image> three = renderAllSurfaces(24, 12, 3);
    ASSERT_EQ(one.size(), three.size());
    for (std::size_t i = 0; i < one.size(); ++i) {
        EXPECT_EQ(one[i].pixels, three[i].pixels) << "surface " << i + 1;
        EXPECT_EQ(renderSurface(static_cast<int>(i) + 1, 24, 12).pixels, one[i].pixels);
    }
}

TEST(RenderSurface, EverySurfaceLooksDifferent) {
    // Mean difference per channel of every pair; two recipes that came out alike (a copied
    // parameter set, a seed that does nothing) fall below a few levels.
    const auto& images = smallSurfaces();
    for (std::size_t a = 0; a < images.size(); ++a)
        for (std::size_t b = a + 1; b < images.size(); ++b) {
            double sum = 0.0;
            for (std::size_t i = 0; i < images[a].pixels.size(); i += 4)
                for (std::size_t c = 0; c < 3; ++c)
                    sum += std::abs(images[a].pixels[i + c] - images[b].pixels[i + c]);
            const double mean = sum / (images[a].pixels.size() / 4 * 3);
            EXPECT_GT(mean, 8.0) << "surfaces " << a + 1 << " and " << b + 1;
        }
}

TEST(RenderSurface, SeamlessWhereLongitudeWrapsAround) {
    // The last column meets the first on the sphere: across the wrap the picture may change
    // no more than it does between neighbouring columns anywhere else.
    for (std::size_t n = 0; n < smallSurfaces().size(); ++n) {
        const Image& image = smallSurfaces()[n];
        double neighbours = 0.0;
        for (int x = 0; x + 1 < image.width; ++x)
            neighbours = std::max(neighbours, columnDifference(image, x, x + 1));
        EXPECT_LE(columnDifference(image, image.width - 1, 0), neighbours + 1.0)
            << "surface " << n + 1;
    }
}

TEST(RenderSurface, PolesAreNotPinched) {
    // The pixels of the first and last rows lie some forty times closer together on the
    // sphere than those of the equator are in either direction, so neighbours there must
    // differ far less. A texture drawn in flat map coordinates would be as rough at the
    // poles as anywhere.
    for (std::size_t n = 0; n < smallSurfaces().size(); ++n) {
        const Image& image = smallSurfaces()[n];
        const int middle = image.height / 2;
        const double equator = std::max(rowRoughness(image, middle), downRoughness(image, middle));
        EXPECT_LE(rowRoughness(image, 0), 0.25 * equator + 0.5) << "surface " << n + 1;
        EXPECT_LE(rowRoughness(image, image.height - 1), 0.25 * equator + 0.5)
            << "surface " << n + 1;
    }
}

TEST(RenderSurface, ModeratelyDarkForAnEmissionMap) {
    // A surface glows on top of the lit planet: mostly in the lower-middle range, with
    // sparing highlights, and never black all over.
    for (std::size_t n = 0; n < smallSurfaces().size(); ++n) {
        const Image& image = smallSurfaces()[n];
        std::vector<double> levels;
        for (int y = 0; y < image.height; ++y)
            for (int x = 0; x < image.width; ++x)
                levels.push_back(luma(image, x, y) / 255.0);
        std::sort(levels.begin(), levels.end());
        double mean = 0.0;
        for (double l : levels)
            mean += l;
        mean /= static_cast<double>(levels.size());
        EXPECT_LE(mean, 0.42) << "surface " << n + 1;
        EXPECT_GE(mean, 0.06) << "surface " << n + 1;
        EXPECT_LE(levels[levels.size() * 9 / 10], 0.6) << "surface " << n + 1;
    }
}

} // namespace
} // namespace orrery::surfaces
