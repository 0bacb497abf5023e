// The camera and light popovers: opening and closing them from their buttons, the live
// check of their fields, the switches, the colour, and the buttons that reset both.
#include "core/model/TextNumber.h"
#include "core/validate/Validators.h"
#include "customWin/AppDelegate.h"
#include "customWin/CameraPopover.h"
#include "customWin/CheckedQuietly.h"
#include "customWin/ColorConversion.h"
#include "customWin/FieldValidity.h"
#include "customWin/PlanetPanel.h"
#include "customWin/mainWindow.h"
#include "customWin/sceneView.h"
#include "customWin/tableView1/colorWell1_09.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

#include <vector>

namespace orrery::window {
namespace {

struct CheckedField {
    QLineEdit* field;
    bool (*check)(std::string_view);
};

// True when every field passes its check; `paint` marks each red or black as it goes.
bool checkAll(const std::vector<CheckedField>& fields, bool paint) {
    bool all = true;
    for (const CheckedField& each : fields) {
        const bool valid = each.check(each.field->text().toStdString());
        if (paint)
            markValid(*each.field, valid);
        all = all && valid;
    }
    return all;
}

// Fields of view 30 to 90, the position any number, z in front of the origin.
std::vector<CheckedField> cameraChecks(CameraPopover& camera) {
    return {{&camera.xfovField5(), validateFov},
            {&camera.yfovField5(), validateFov},
            {&camera.xField5(), validatePosNegFloat},
            {&camera.yField5(), validatePosNegFloat},
            {&camera.zField5(), validatePosOnlyFloat}};
}

double number(const QLineEdit& field) {
    return static_cast<double>(floatValue(field.text().toStdString()));
}

void setTexts(std::initializer_list<std::pair<QLineEdit*, QString>> fields) {
    for (const auto& [field, value] : fields) {
        field->setText(value);
        markValid(*field, true);
    }
}

} // namespace

void AppDelegate::buildPopovers() {
    popOver5_ = new CameraPopover(mainWindow_);
    popOver4_ = new LightPopover(mainWindow_);
    PlanetPanel& panel = planetPanel();
    connect(&panel.cameraButton(), &QPushButton::clicked, this, &AppDelegate::show1bClicked);
    connect(&panel.lightButton(), &QPushButton::clicked, this, &AppDelegate::show1Clicked);
    for (QLineEdit* field : {&popOver5_->xfovField5(), &popOver5_->yfovField5(),
                             &popOver5_->xField5(), &popOver5_->yField5(), &popOver5_->zField5()})
        connect(field, &QLineEdit::textEdited, this, [this, field] { cameraFieldEdited(*field); });
    for (QLineEdit* field : {&popOver4_->xField4(), &popOver4_->yField4(), &popOver4_->zField4()})
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
    const std::vector<std::string> settings = sceneview().scene().getCameraSettings();
    CameraPopover& camera = *popOver5_;
    setTexts({{&camera.xfovField5(), QString::fromStdString(settings[0])},
              {&camera.yfovField5(), QString::fromStdString(settings[1])},
              {&camera.xField5(), QString::fromStdString(settings[2])},
              {&camera.yField5(), QString::fromStdString(settings[3])},
              {&camera.zField5(), QString::fromStdString(settings[4])}});
    setCheckedQuietly(camera.orthoButton5(), settings[5] == "1");
    setCheckedQuietly(camera.adjustZButton5(), settings[6] == "1");
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
    LightPopover& light = *popOver4_;
    setTexts({{&light.xField4(), QString::fromStdString(formatF(position.x))},
              {&light.yField4(), QString::fromStdString(formatF(position.y))},
              {&light.zField4(), QString::fromStdString(formatF(position.z))}});
    light.colorWell4().setColor(state_.lightColor);
}

bool AppDelegate::markCameraFields() {
    return checkAll(cameraChecks(*popOver5_), true);
}

void AppDelegate::applyCamera(int mergeKey) {
    CameraPopover& camera = *popOver5_;
    editor_->setCamera(number(camera.xfovField5()), number(camera.yfovField5()),
                       number(camera.xField5()), number(camera.yField5()), number(camera.zField5()),
                       camera.orthoButton5().isChecked(), camera.adjustZButton5().isChecked(),
                       mergeKey);
}

void AppDelegate::cameraFieldEdited(const QLineEdit& edited) {
    if (markCameraFields())
        applyCamera(editSessionFor(edited));
}

void AppDelegate::lightFieldEdited(const QLineEdit& edited) {
    LightPopover& light = *popOver4_;
    const bool valid = checkAll({{&light.xField4(), validatePosNegFloat},
                                 {&light.yField4(), validatePosNegFloat},
                                 {&light.zField4(), validatePosNegFloat}},
                                true);
    if (!valid)
        return;
    editor_->setLightPosition(light.xField4().text().toStdString(),
                              light.yField4().text().toStdString(),
                              light.zField4().text().toStdString(), editSessionFor(edited));
}

// Either switch applies the whole camera when every field holds a usable value; the
// fields' colours already say which does not.
void AppDelegate::applyCameraSwitches() {
    if (!checkAll(cameraChecks(*popOver5_), false))
        return;
    lastEditedField_ = nullptr;
    applyCamera(0);
}

void AppDelegate::setCameraDefault() {
    editor_->setCameraDefault();
    CameraPopover& camera = *popOver5_;
    setTexts({{&camera.xfovField5(), QStringLiteral("45.0")},
              {&camera.yfovField5(), QStringLiteral("45.0")},
              {&camera.xField5(), QStringLiteral("0.000000")},
              {&camera.yField5(), QStringLiteral("0.000000")},
              {&camera.zField5(), QStringLiteral("500.000000")}});
    setCheckedQuietly(camera.orthoButton5(), true);
    setCheckedQuietly(camera.adjustZButton5(), true);
}

void AppDelegate::colorChanged4Clicked(const Color& color) {
    state_.lightColor = fromQColor(toQColor(color));
    editor_->setLightColor(state_.lightColor);
}

// The z field shows 50 although the light stands at 100 again, until the popover next
// opens and shows the real position.
void AppDelegate::setLightDefault() {
    editor_->setLightDefault();
    state_.lightColor = kWhite;
    LightPopover& light = *popOver4_;
    light.colorWell4().setColor(kWhite);
    setTexts({{&light.xField4(), QStringLiteral("0.000000")},
              {&light.yField4(), QStringLiteral("0.000000")},
              {&light.zField4(), QStringLiteral("50.000000")}});
}

} // namespace orrery::window
