#include "customWin/AnimationSheet.h"

#include "core/scene/SceneView.h"
#include "customWin/Accessibility.h"
#include "customWin/AnimationPreview.h"
#include "customWin/PercentSlider.h"
#include "customWin/Sheet.h"
#include "customWin/Strings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>

#include <cmath>

namespace orrery::window {
namespace {

constexpr int kPreviewWidth = 256;

// The format pop-up's rows, in the order of AnimationFormat.
constexpr const char* kFormatKeys[] = {"animationFormatGif",   "animationFormatWebp",
                                       "animationFormatWebm",  "animationFormatMp4",
                                       "animationFormatSheet", "animationFormatFrames"};

QSize previewSize(const SceneView& scene) {
    const double aspect = scene.viewHeight() / std::max(scene.viewWidth(), 1.0);
    return {kPreviewWidth, std::max(1, static_cast<int>(std::lround(kPreviewWidth * aspect)))};
}

template <typename Field> Field* named(Field* field, const char* name, QWidget* parent) {
    field->setParent(parent);
    field->setObjectName(QLatin1String(name));
    return field;
}

} // namespace

AnimationSheet::AnimationSheet(QWidget& window, const AnimationChoices& choices,
                               IncludeBackgroundChoice include, long background,
                               std::shared_ptr<const SceneView> scene,
                               std::function<void(const std::optional<AnimationChoices>&)> answered)
    : QDialog(&window), format_(named(new QComboBox, "animationFormatPopup", this)),
      frames_(named(new QSpinBox, "animationFramesField", this)),
      fps_(named(new QSpinBox, "animationFpsField", this)),
      spin_(named(new QComboBox, "animationSpinPopup", this)),
      palette_(named(new QComboBox, "animationPalettePopup", this)),
      lightOrbit_(named(new QCheckBox(text("animationLightOrbit")), "animationOrbitButton", this)),
      include_(
          named(new QCheckBox(text("exportIncludeBackground")), "animationIncludeButton", this)),
      scale_(named(new QDoubleSpinBox, "animationScaleField", this)),
      quality_(new PercentSlider(QStringLiteral("animationQualitySlider"),
                                 QStringLiteral("animationQualityLabel"), this)),
      preview_(new AnimationPreview(previewSize(*scene), this)), background_(background),
      scene_(std::move(scene)) {
    setObjectName(QStringLiteral("animationSheet"));
    setWindowTitle(text("animationSheetTitle"));
    makeSheet(*this);
    for (const char* key : kFormatKeys)
        format_->addItem(text(key));
    spin_->addItems({text("animationSpinSame"), text("animationSpinBySize")});
    palette_->addItems({text("animationPaletteFrame"), text("animationPaletteLoop")});
    frames_->setRange(kFewestFrames, kMostFrames);
    fps_->setRange(kLowestFps, kHighestFps);
    scale_->setRange(0.1, 8.0);
    scale_->setDecimals(2);
    scale_->setSingleStep(0.25);
    preview_->setAccessibleName(text("animationPreviewName"));

    const AnimationOptions& o = choices.options;
    format_->setCurrentIndex(static_cast<int>(choices.format));
    frames_->setValue(o.frames);
    fps_->setValue(o.fps);
    spin_->setCurrentIndex(o.spin == SpinMode::bySize ? 1 : 0);
    palette_->setCurrentIndex(o.loopPalette ? 1 : 0);
    lightOrbit_->setChecked(o.lightOrbit);
    include_->setEnabled(include.enabled);
    include_->setChecked(include.enabled && o.includeBackground);
    scale_->setValue(o.scale);
    quality_->setValue(o.quality);

    auto* form = new QFormLayout;
    const auto row = [form](const char* key, QWidget* field) {
        form->addRow(text(key), field);
        field->setAccessibleName(text(key));
    };
    row("animationFormatLabel", format_);
    row("animationFramesLabel", frames_);
    row("animationFpsLabel", fps_);
    row("animationSpinLabel", spin_);
    form->addRow(QString(), lightOrbit_);
    form->addRow(QString(), include_);
    row("animationScaleLabel", scale_);
    form->addRow(text("animationQualityLabel"), quality_);
    row("animationPaletteLabel", palette_);
    quality_->slider().setAccessibleName(text("animationQualityLabel"));
    nameChoices(*format_, text("animationFormatLabel"));
    nameChoices(*spin_, text("animationSpinLabel"));
    nameChoices(*palette_, text("animationPaletteLabel"));

    auto* exportButton = named(new QPushButton(text("animationExport")), "sheetButton1000", this);
    auto* cancelButton = named(new QPushButton(text("animationCancel")), "sheetButton1001", this);
    exportButton->setDefault(true);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cancelButton);
    buttons->addWidget(exportButton);
    auto* top = new QHBoxLayout;
    top->addLayout(form, 1);
    top->addWidget(preview_, 0, Qt::AlignTop);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->addLayout(top);
    layout->addLayout(buttons);

    connect(exportButton, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    setAttribute(Qt::WA_DeleteOnClose);
    connect(this, &QDialog::finished, this, [this, answered = std::move(answered)](int result) {
        answered(result == QDialog::Accepted ? std::optional(this->choices()) : std::nullopt);
    });
    // Every choice that changes the picture or its pace draws the preview again.
    for (QComboBox* box : {format_, spin_})
        connect(box, &QComboBox::currentIndexChanged, this, &AnimationSheet::choicesChanged);
    for (QSpinBox* field : {frames_, fps_})
        connect(field, &QSpinBox::valueChanged, this, &AnimationSheet::choicesChanged);
    for (QCheckBox* box : {lightOrbit_, include_})
        connect(box, &QCheckBox::toggled, this, &AnimationSheet::choicesChanged);
    choicesChanged();
}

AnimationChoices AnimationSheet::choices() const {
    AnimationChoices c;
    c.format = static_cast<AnimationFormat>(format_->currentIndex());
    c.options.frames = frames_->value();
    c.options.fps = fps_->value();
    c.options.spin = spin_->currentIndex() == 1 ? SpinMode::bySize : SpinMode::same;
    c.options.lightOrbit = lightOrbit_->isChecked();
    c.options.includeBackground = include_->isChecked();
    c.options.scale = scale_->value();
    c.options.quality = quality_->slider().value();
    c.options.loopPalette = palette_->currentIndex() == 1;
    return c;
}

void AnimationSheet::choicesChanged() {
    const AnimationChoices c = choices();
    const AnimationFormatInfo& info = animationFormatInfo(c.format);
    quality_->setEnabled(info.usesQuality);
    palette_->setEnabled(c.format == AnimationFormat::gif);
    preview_->showLoop(scene_, c.options, background_, info.keepsAlpha);
}

} // namespace orrery::window
