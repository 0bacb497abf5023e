#pragma once

#include "core/animate/AnimationPreferences.h"
#include "core/export/ExportChoices.h"

#include <QDialog>

#include <functional>
#include <memory>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QSpinBox;

namespace orrery {
class SceneView;
}

namespace orrery::window {

class AnimationPreview;
class PercentSlider;

// The sheet of File > Export Animation: the format and the turn's options beside a preview
// that turns as they are changed. `answered` gets the choices, or none for Cancel, once.
class AnimationSheet : public QDialog {
    Q_OBJECT
public:
    AnimationSheet(QWidget& window, const AnimationChoices& choices,
                   IncludeBackgroundChoice include, long background,
                   std::shared_ptr<const SceneView> scene,
                   std::function<void(const std::optional<AnimationChoices>&)> answered);

    AnimationChoices choices() const;

private:
    void choicesChanged();

    QComboBox* format_;
    QSpinBox* frames_;
    QSpinBox* fps_;
    QComboBox* spin_;
    QComboBox* palette_;
    QCheckBox* lightOrbit_;
    QCheckBox* include_;
    QDoubleSpinBox* scale_;
    PercentSlider* quality_;
    AnimationPreview* preview_;
    long background_;
    std::shared_ptr<const SceneView> scene_;
};

} // namespace orrery::window
