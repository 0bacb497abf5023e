#include "core/package/JsonLayout.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

TEST(JsonLayout, PlainListsStayOnOneLine) {
    const nlohmann::ordered_json value = nlohmann::ordered_json::parse(
        R"({"b": "x", "a": {"color": [1.0, 0.5], "empty": [], "none": {}},
            "list": [{"n": 1}, {"n": 2}]})");
    EXPECT_EQ(layOutJson(value), R"({
  "b": "x",
  "a": {
    "color": [1.0, 0.5],
    "empty": [],
    "none": {}
  },
  "list": [
    {
      "n": 1
    },
    {
      "n": 2
    }
  ]
}
)");
    // Reading it back gives the same value, member order included.
    EXPECT_EQ(nlohmann::ordered_json::parse(layOutJson(value)), value);
}

TEST(JsonLayout, BrokenTextIsShownNotRefused) {
    // A damaged package may hold names that are not UTF-8.
    const nlohmann::ordered_json value = {{"name", "Io\xff"}};
    EXPECT_EQ(layOutJson(value), "{\n  \"name\": \"Io\xef\xbf\xbd\"\n}\n");
}

} // namespace
} // namespace orrery
