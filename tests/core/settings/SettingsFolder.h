#pragma once

#include "core/settings/Settings.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <string>

namespace orrery {

// A fresh folder per test that holds the application folder, removed afterwards.
class SettingsFiles : public testing::Test {
protected:
    void SetUp() override {
        folder_ = std::filesystem::temp_directory_path() /
                  ("orrery-settings-" + std::to_string(::getpid()) + "-" +
                   testing::UnitTest::GetInstance()->current_test_info()->name());
        std::filesystem::remove_all(folder_);
    }
    void TearDown() override { std::filesystem::remove_all(folder_); }

    std::filesystem::path appFolder() const { return folder_ / "share" / "orrery"; }

    Settings startUp() const {
        Settings settings(AppPaths::inFolder(appFolder()));
        runSettingsStartup(settings);
        return settings;
    }

    std::filesystem::path folder_;
};

} // namespace orrery
