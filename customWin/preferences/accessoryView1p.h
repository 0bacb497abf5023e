#pragma once

#include "core/settings/PreferencesValues.h"

#include <QWidget>

#include <array>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QSlider;
class QTabWidget;

namespace orrery::window {

class FolderChoice;
class PercentSlider;

// The contents of the Preferences sheet, 530 x 620: three tabs (the twelve general
// switches; the open and export folders; the export format and compression), a note that
// some changes wait for the next start, and Close and Save. It is made once and shows
// whatever values it is given; it stores nothing itself.
class accessoryView1p : public QWidget {
    Q_OBJECT
public:
    static constexpr int kWidth = 530;
    static constexpr int kHeight = 620;

    accessoryView1p();

    void showValues(const PreferencesValues& values);
    void setGeneralSwitch(GeneralSwitch which, bool on);
    // The values as the controls show them now.
    PreferencesValues values() const;

    QTabWidget& tabView1p() { return *tabs_; }
    FolderChoice& openFolder() { return *openFolder_; }
    FolderChoice& exportFolder() { return *exportFolder_; }
    QPushButton& closeButton1p() { return *close_; }
    QPushButton& saveButton1p() { return *save_; }

private:
    QWidget* makeGeneralTab();
    QWidget* makeFoldersTab();
    QWidget* makeExportingTab();

    QTabWidget* tabs_;
    std::array<QCheckBox*, kGeneralSwitchCount> general_{};
    FolderChoice* openFolder_ = nullptr;
    FolderChoice* exportFolder_ = nullptr;
    QComboBox* format_ = nullptr;
    PercentSlider* compression_ = nullptr;
    QPushButton* close_;
    QPushButton* save_;
};

} // namespace orrery::window
