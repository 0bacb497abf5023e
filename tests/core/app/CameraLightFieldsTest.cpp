#include "core/app/CameraLightFields.h"
#include "core/edit/SystemEditor.h"
#include "core/package/ProjectSettings.h"

#include <gtest/gtest.h>

namespace orrery {
namespace {

// A package's settings with one value changed, checked as opening checks them.
OpenedProject openedWith(std::size_t index, const std::string& value) {
    OpenedProject project;
    project.settings = {"960",        "540", "0", "30",   "60", "-5",  "7",
                        "250.500000", "0",   "1", "-1.5", "2",  "-100"};
    project.settings[index] = value;
    checkOpenedSettings(project);
    return project;
}

// Default puts the camera back; its fields then show what the scene gives.
TEST(CameraLightFields, TheCameraShowsTheScenesSettings) {
    PlanetList planets;
    SceneView scene;
    SystemEditor editor{planets, scene};
    editor.setCamera(60, 45, 10, 0, 500, false, false);
    editor.setCameraDefault();
    const CameraFields shown = cameraFields(scene.getCameraSettings());
    EXPECT_EQ(shown.texts, (FieldTexts<cameraField::count>{"45.0", "45.0", "0.000000", "0.000000",
                                                           "500.000000"}));
    EXPECT_TRUE(shown.orthographic && shown.zRange);
    EXPECT_FALSE(cameraFields({"45.0", "45.0", "0", "0", "500", "0", "1"}).orthographic);
    EXPECT_FALSE(cameraFields({"45.0"}).zRange);
}

TEST(CameraLightFields, AnOpenedPackageFillsTheFieldsOrMarksThem) {
    const FieldTexts<cameraField::count> shown{"45.0", "45.0", "0.000000", "0.000000", "0"};
    const struct {
        std::size_t index;
        const char* value;
        bool cameraShown;
        std::array<bool, cameraField::count> cameraValid;
        bool lightShown;
        std::array<bool, lightField::count> lightValid;
    } cases[] = {
        // Everything passes: the file's texts, all black.
        {setting::width, "960", true, {true, true, true, true, true}, true, {true, true, true}},
        // A refused camera keeps the fields, marked by what they show (here z "0"), not by
        // the file's values.
        {setting::cameraXFov,
         "20",
         false,
         {true, true, true, true, false},
         true,
         {true, true, true}},
        // A refused light keeps its texts and marks the file's failing value.
        {setting::lightX + 1,
         "up",
         true,
         {true, true, true, true, true},
         false,
         {true, false, true}},
    };
    for (const auto& c : cases) {
        const OpenedProject project = openedWith(c.index, c.value);
        const OpenedCamera camera = openedCamera(project, shown);
        EXPECT_EQ(camera.shown.has_value(), c.cameraShown) << c.value;
        EXPECT_EQ(camera.valid, c.cameraValid) << c.value;
        if (camera.shown) {
            EXPECT_EQ(camera.shown->texts,
                      (FieldTexts<cameraField::count>{"30", "60", "-5", "7", "250.500000"}));
            EXPECT_FALSE(camera.shown->orthographic);
            EXPECT_TRUE(camera.shown->zRange);
        }
        const OpenedLight light = openedLight(project);
        EXPECT_EQ(light.shown.has_value(), c.lightShown) << c.value;
        EXPECT_EQ(light.valid, c.lightValid) << c.value;
        if (light.shown) {
            EXPECT_EQ(*light.shown, (FieldTexts<lightField::count>{"-1.5", "2", "-100"}));
        }
    }
}

} // namespace
} // namespace orrery
