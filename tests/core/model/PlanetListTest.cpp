#include "core/model/PlanetList.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

PlanetRecord planet(const std::string& tsecs, const std::string& name) {
    return newPlanetRecord(tsecs, name);
}

TEST(PlanetRecord, NewRecordHasTheCreationDefaults) {
    const PlanetRecord record = newPlanetRecord("1424700000", "Earth");
    EXPECT_EQ(record.state, "1");
    EXPECT_EQ(record.styleindex, "0");
    EXPECT_EQ(record.surfaceindex, "0");
    EXPECT_EQ(record.xvalue, "0");
    EXPECT_EQ(record.yvalue, "0");
    EXPECT_EQ(record.zvalue, "0");
    EXPECT_EQ(record.radius, "24");
    EXPECT_EQ(record.color, kPureBlue);
    for (const std::string& value : record.reserved)
        EXPECT_EQ(value, "0");
}

TEST(PlanetRecord, RebuildChangesOneFieldAndClearsTheReservedValues) {
    PlanetRecord loaded = newPlanetRecord("1", "Mars");
    loaded.reserved = {"7", "x", "", "1", "2"};
    loaded.xvalue = "-3";

    const PlanetRecord edited = rebuilt(loaded, PlanetKey::radius, " 12.5 ");
    EXPECT_EQ(edited.radius, " 12.5 "); // stored exactly as typed
    EXPECT_EQ(edited.xvalue, "-3");
    EXPECT_EQ(edited.name, "Mars");
    EXPECT_EQ(edited.reserved, (std::array<std::string, 5>{"0", "0", "0", "0", "0"}));

    const PlanetRecord recoloured = rebuiltWithColor(loaded, Color{1, 0, 0, 0.5});
    EXPECT_EQ(recoloured.color, (Color{1, 0, 0, 0.5}));
    EXPECT_EQ(recoloured.reserved[0], "0");

    const PlanetRecord moved = rebuiltWithPosition(loaded, "1", "2", "3");
    EXPECT_EQ(moved.xvalue + moved.yvalue + moved.zvalue, "123");
    EXPECT_EQ(moved.reserved[1], "0");

    // Even an edit of a reserved key cannot put anything but "0" there.
    EXPECT_EQ(rebuilt(loaded, PlanetKey::value1, "9").reserved[0], "0");
}

TEST(PlanetRecord, EveryKeyNameMapsBackToItsKey) {
    for (std::size_t i = 0; i < kPlanetKeyCount; ++i) {
        const auto key = static_cast<PlanetKey>(i);
        EXPECT_EQ(planetKeyNamed(keyName(key)), key);
    }
    EXPECT_FALSE(planetKeyNamed("Name").has_value());
    PlanetRecord record;
    EXPECT_EQ(record.text(PlanetKey::color), nullptr);
    EXPECT_EQ(*record.text(PlanetKey::radius), "24");
}

TEST(PlanetList, AppendReplaceRemoveKeepOrder) {
    PlanetList list;
    for (int i = 1; i <= 5; ++i)
        list.append(planet(std::to_string(i), "p" + std::to_string(i)));

    ASSERT_TRUE(list.remove(1)); // the second of five
    ASSERT_EQ(list.size(), 4u);
    EXPECT_EQ(list.at(1).tsecs, "3");
    EXPECT_EQ(list.at(3).tsecs, "5");

    EXPECT_TRUE(list.replace(0, planet("1", "renamed")));
    EXPECT_EQ(list.at(0).name, "renamed");
    EXPECT_FALSE(list.replace(4, planet("9", "x")));
    EXPECT_FALSE(list.remove(4));
    EXPECT_EQ(list.size(), 4u);
}

TEST(PlanetList, FindsByIdentityTheWayDragAndClickNeedIt) {
    PlanetList list;
    list.append(planet("10", "a"));
    list.append(planet("20", "b"));
    list.append(planet("10", "c")); // made in the same second as "a"

    EXPECT_EQ(list.firstIndexOf("10"), 0u);
    EXPECT_EQ(list.indicesOf("10"), (std::vector<std::size_t>{0, 2}));
    EXPECT_FALSE(list.firstIndexOf("1").has_value()); // exact text, not a prefix
    EXPECT_TRUE(list.indicesOf("30").empty());
}

TEST(PlanetList, ExportNeedsOneVisiblePlanet) {
    PlanetList list;
    EXPECT_FALSE(list.anyVisible());
    list.append(rebuilt(planet("1", "a"), PlanetKey::state, "0"));
    EXPECT_FALSE(list.anyVisible());
    list.append(planet("2", "b"));
    EXPECT_TRUE(list.anyVisible());
}

} // namespace
} // namespace orrery
