#include "core/app/SaveTarget.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

TEST(SaveTarget, TheNameAlwaysGetsItsExtensionAndNeverLandsInAPackage) {
    const struct {
        const char* chosen;
        const char* extension;
        const char* target;
    } cases[] = {
        {"/d/Earth 2.0", "kvx", "/d/Earth 2.0.kvx"},
        {"/d/Earth", "kvx", "/d/Earth.kvx"},
        {"/d/Earth.kvx", "kvx", "/d/Earth.kvx"},
        {"/d/Earth.KVX", "kvx", "/d/Earth.KVX"},
        {"/d/Earth.kvx/", "kvx", "/d/Earth.kvx"},
        {"/d/.kvx", "kvx", "/d/.kvx.kvx"},
        {"/d/v1.2.png", "png", "/d/v1.2.png"},
        {"/d/Earth.kvx", "png", "/d/Earth.kvx.png"},
        // Inside a package: beside the outermost one instead.
        {"/d/Outer.kvx/Inner", "kvx", "/d/Inner.kvx"},
        {"/d/Outer.kvx/x/Inner.kvx/shot", "png", "/d/shot.png"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(saveTarget(c.chosen, c.extension, "kvx"), c.target) << c.chosen;
}

} // namespace
} // namespace orrery
