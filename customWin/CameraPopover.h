#pragma once

#include "core/app/CameraLightFields.h"
#include "customWin/FieldValidity.h"
#include "customWin/Popover.h"

#include <QLineEdit>

#include <array>
#include <string_view>

class QCheckBox;
class QPushButton;

namespace orrery::window {

// A popover's text fields, in the order of their values (cameraField, lightField).
template <std::size_t N> using FieldList = std::array<QLineEdit*, N>;

template <std::size_t N> FieldTexts<N> textsOf(const FieldList<N>& fields) {
    FieldTexts<N> texts;
    for (std::size_t i = 0; i < N; ++i)
        texts[i] = fields[i]->text().toStdString();
    return texts;
}

// Texts the program shows are values that pass: every field turns black.
template <std::size_t N, typename Text>
void showTexts(const FieldList<N>& fields, const std::array<Text, N>& texts) {
    for (std::size_t i = 0; i < N; ++i) {
        const std::string_view text = texts[i];
        fields[i]->setText(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
        markValid(*fields[i], true);
    }
}

template <std::size_t N>
void markFields(const FieldList<N>& fields, const std::array<bool, N>& valid) {
    for (std::size_t i = 0; i < N; ++i)
        markValid(*fields[i], valid[i]);
}

// The camera popover (popOver5): the x and y field of view, the position, the
// orthographic and z-range switches, and the button that puts the camera back.
class CameraPopover : public Popover {
    Q_OBJECT
public:
    explicit CameraPopover(QWidget* parent);

    const FieldList<cameraField::count>& fields() const { return fields_; }
    QLineEdit& field(std::size_t which) { return *fields_[which]; }
    QCheckBox& orthoButton5() { return *ortho_; }
    QCheckBox& adjustZButton5() { return *adjustZ_; }
    QPushButton& defaultButton5() { return *default_; }

    // The texts and switches as the camera has them, set without acting on them.
    void showCamera(const CameraFields& camera);

private:
    FieldList<cameraField::count> fields_;
    QCheckBox* ortho_;
    QCheckBox* adjustZ_;
    QPushButton* default_;
};

// The light popover (popOver4): the light's colour and position, and the button that puts
// the light back.
class colorWell1_09;
class LightPopover : public Popover {
    Q_OBJECT
public:
    explicit LightPopover(QWidget* parent);

    colorWell1_09& colorWell4() { return *color_; }
    const FieldList<lightField::count>& fields() const { return fields_; }
    QLineEdit& field(std::size_t which) { return *fields_[which]; }
    QPushButton& defaultButton4() { return *default_; }

private:
    colorWell1_09* color_;
    FieldList<lightField::count> fields_;
    QPushButton* default_;
};

} // namespace orrery::window
