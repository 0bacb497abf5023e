// The camera and light popovers: opening and closing them from their buttons, the live
// check of their fields, the switches, the colour, the buttons that reset both, and what an
// opened package shows in them. Which check each field passes and what the fields show are
// the core's (core/app/CameraLightFields.h).
#include "core/model/TextNumber.h"
#include "customWin/AppDelegate.h"
#include "customWin/CameraPopover.h"
#include "customWin/ColorConversion.h"
#include "customWin/PlanetPanel.h"
#include "customWin/mainWindow.h"
#include "customWin/sceneView.h"
#include "customWin/tableView1/colorWell1_09.h"

#include <QCheckBox>
#include <QPushButton>

namespace orrery::window {

void AppDelegate::buildPopovers() {
    popOver5_ = new CameraPopover(mainWindow_);
    popOver4_ = new LightPopover(mainWindow_);
    PlanetPanel& panel = planetPanel();
    connect(&panel.cameraButton(), &QPushButton::clicked, this, &AppDelegate::show1bClicked);
    connect(&panel.lightButton(), &QPushButton::clicked, this, &AppDelegate::show1Clicked);
    for (QLineEdit* field : popOver5_->fields())
        connect(field, &QLineEdit::textEdited, this, [this, field] { cameraFieldEdited(*field); });
    for (QLineEdit* field : popOver4_->fields())
        connect(field, &QLineEdit::textEdited, this, [this, field] { lightFieldEdited(*field); });
    connect(&popOver5_->orthoButton5(), &QCheckBox::toggled, this,
            [this] { applyCameraSwitches(); });
    connect(&popOver5_->adjustZButton5(), &QCheckBox::toggled, this,
            [this] { applyCameraSwitches(); });
    connect(&popOver5_->defaultButton5(), &QPushButton::clicked, this,
            &AppDelegate::setCameraDefault);
    connect(&popOver4_->colorWell4(), &colorWell1_09::colorChosen, this,
            &AppDelegate::colorChanged4Clicked);
    connect(&popOver4_->defaultButton4(), &QPushButton::clicked, this,
            &AppDelegate::setLightDefault);
}

// One field's keystrokes, one after another, are one step to undo.
int AppDelegate::editSessionFor(const QLineEdit& field) {
    if (&field != lastEditedField_) {
        lastEditedField_ = &field;
        ++editSession_;
    }
    return editSession_;
}

void AppDelegate::show1bClicked() {
    if (state_.popover5shown) {
        popOver5_->hide();
        state_.popover5shown = false;
        return;
    }
    showCameraSettings();
    lastEditedField_ = nullptr;
    popOver5_->showBeside(planetPanel().cameraButton());
    state_.popover5shown = true;
}

void AppDelegate::showCameraSettings() {
    popOver5_->showCamera(cameraFields(sceneview().scene().getCameraSettings()));
}

void AppDelegate::show1Clicked() {
    showLightSettings();
    if (!state_.popover4shown) {
        lastEditedField_ = nullptr;
        popOver4_->showBeside(planetPanel().lightButton());
        state_.popover4shown = true;
    } else {
        popOver4_->hide();
        state_.popover4shown = false;
    }
}

void AppDelegate::showLightSettings() {
    const Vec3 position = sceneview().scene().getLightPosition();
    showTexts(popOver4_->fields(),
              FieldTexts<lightField::count>{formatF(position.x), formatF(position.y),
                                            formatF(position.z)});
    popOver4_->colorWell4().setColor(state_.lightColor);
}

// Every field is marked as it stands; the camera changes only when all of them pass.
void AppDelegate::cameraFieldEdited(const QLineEdit& edited) {
    const auto checks = checkCameraFields(textsOf(popOver5_->fields()));
    markFields(popOver5_->fields(), checks.valid);
    if (checks.all)
        applyCamera(editSessionFor(edited));
}

void AppDelegate::applyCamera(int mergeKey) {
    const FieldTexts<cameraField::count> texts = textsOf(popOver5_->fields());
    const auto number = [&texts](std::size_t field) {
        return static_cast<double>(floatValue(texts[field]));
    };
    using namespace cameraField;
    editor_->setCamera(number(xfov), number(yfov), number(x), number(y), number(z),
                       popOver5_->orthoButton5().isChecked(),
                       popOver5_->adjustZButton5().isChecked(), mergeKey);
}

void AppDelegate::lightFieldEdited(const QLineEdit& edited) {
    const FieldTexts<lightField::count> texts = textsOf(popOver4_->fields());
    const auto checks = checkLightFields(texts);
    markFields(popOver4_->fields(), checks.valid);
    if (checks.all)
        editor_->setLightPosition(texts[lightField::x], texts[lightField::y], texts[lightField::z],
                                  editSessionFor(edited));
}

// Either switch applies the whole camera when every field holds a usable value; the
// fields' colours already say which does not.
void AppDelegate::applyCameraSwitches() {
    if (!checkCameraFields(textsOf(popOver5_->fields())).all)
        return;
    lastEditedField_ = nullptr;
    applyCamera(0);
}

void AppDelegate::setCameraDefault() {
    editor_->setCameraDefault();
    showCameraSettings();
}

void AppDelegate::colorChanged4Clicked(const Color& color) {
    state_.lightColor = fromQColor(toQColor(color));
    editor_->setLightColor(state_.lightColor);
}

void AppDelegate::setLightDefault() {
    editor_->setLightDefault();
    state_.lightColor = kWhite;
    popOver4_->colorWell4().setColor(kWhite);
    showTexts(popOver4_->fields(), kLightDefaultTexts);
}

void AppDelegate::showOpenedCameraAndLight(const OpenedProject& project) {
    const OpenedCamera camera = openedCamera(project, textsOf(popOver5_->fields()));
    if (camera.shown)
        popOver5_->showCamera(*camera.shown);
    markFields(popOver5_->fields(), camera.valid);
    const OpenedLight light = openedLight(project);
    if (light.shown)
        showTexts(popOver4_->fields(), *light.shown);
    markFields(popOver4_->fields(), light.valid);
    state_.lightColor = project.lightColor;
    popOver4_->colorWell4().setColor(state_.lightColor);
}

} // namespace orrery::window
