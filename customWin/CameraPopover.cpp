#include "customWin/CameraPopover.h"

#include "customWin/CheckedQuietly.h"
#include "customWin/Strings.h"
#include "customWin/tableView1/colorWell1_09.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace orrery::window {
namespace {

constexpr int kFieldWidth = 84;

QLineEdit* makeField(const char* name, QWidget* parent) {
    auto* field = new QLineEdit(parent);
    field->setObjectName(QLatin1String(name));
    field->setFixedWidth(kFieldWidth);
    field->setAlignment(Qt::AlignRight);
    // Light fields, so that the red and black of the check read clearly.
    field->setStyleSheet(QStringLiteral("QLineEdit { background: #f4f5f8; border: 1px solid"
                                        " #5b6785; border-radius: 4px; padding: 1px 4px; }"));
    markValid(*field, true);
    return field;
}

// Three fields side by side, for a position.
QWidget* row(std::initializer_list<QWidget*> fields, QWidget* parent) {
    auto* box = new QWidget(parent);
    auto* layout = new QHBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    for (QWidget* field : fields)
        layout->addWidget(field);
    layout->addStretch();
    return box;
}

QFormLayout* formOf(QWidget* popover) {
    auto* form = new QFormLayout(popover);
    form->setContentsMargins(16, 14, 16, 14);
    form->setHorizontalSpacing(12);
    form->setVerticalSpacing(10);
    form->setLabelAlignment(Qt::AlignRight);
    return form;
}

// The position's fields are named by what they place and their axis.
void nameAxes(QLineEdit* x, QLineEdit* y, QLineEdit* z, const QString& what) {
    const std::pair<QLineEdit*, const char*> axes[] = {{x, "x"}, {y, "y"}, {z, "z"}};
    for (const auto& [field, axis] : axes)
        field->setAccessibleName(what + QLatin1Char(' ') + QLatin1String(axis));
}

} // namespace

CameraPopover::CameraPopover(QWidget* parent)
    : Popover(parent), fields_{makeField("xfovField5", this), makeField("yfovField5", this),
                               makeField("xField5", this), makeField("yField5", this),
                               makeField("zField5", this)},
      ortho_(new QCheckBox(text("cameraOrtho"), this)),
      adjustZ_(new QCheckBox(text("cameraAdjustZ"), this)),
      default_(new QPushButton(text("cameraDefault"), this)) {
    setObjectName(QStringLiteral("popOver5"));
    ortho_->setObjectName(QStringLiteral("orthoButton5"));
    adjustZ_->setObjectName(QStringLiteral("adjustZButton5"));
    default_->setObjectName(QStringLiteral("defaultButton5"));
    fields_[cameraField::xfov]->setAccessibleName(text("cameraXfovLabel"));
    fields_[cameraField::yfov]->setAccessibleName(text("cameraYfovLabel"));
    nameAxes(fields_[cameraField::x], fields_[cameraField::y], fields_[cameraField::z],
             text("cameraPositionLabel"));
    QFormLayout* form = formOf(this);
    form->addRow(text("cameraXfovLabel"), fields_[cameraField::xfov]);
    form->addRow(text("cameraYfovLabel"), fields_[cameraField::yfov]);
    form->addRow(
        text("cameraPositionLabel"),
        row({fields_[cameraField::x], fields_[cameraField::y], fields_[cameraField::z]}, this));
    form->addRow(QString(), ortho_);
    form->addRow(QString(), adjustZ_);
    form->addRow(QString(), row({default_}, this));
}

void CameraPopover::showCamera(const CameraFields& camera) {
    showTexts(fields_, camera.texts);
    setCheckedQuietly(*ortho_, camera.orthographic);
    setCheckedQuietly(*adjustZ_, camera.zRange);
}

LightPopover::LightPopover(QWidget* parent)
    : Popover(parent), color_(new colorWell1_09(this)), fields_{makeField("xField4", this),
                                                                makeField("yField4", this),
                                                                makeField("zField4", this)},
      default_(new QPushButton(text("lightDefault"), this)) {
    setObjectName(QStringLiteral("popOver4"));
    color_->setObjectName(QStringLiteral("colorWell4"));
    color_->setAccessibleName(text("lightColorLabel"));
    color_->setFixedSize(64, 28);
    default_->setObjectName(QStringLiteral("defaultButton4"));
    nameAxes(fields_[lightField::x], fields_[lightField::y], fields_[lightField::z],
             text("lightPositionLabel"));
    QFormLayout* form = formOf(this);
    form->addRow(text("lightColorLabel"), color_);
    form->addRow(
        text("lightPositionLabel"),
        row({fields_[lightField::x], fields_[lightField::y], fields_[lightField::z]}, this));
    form->addRow(QString(), row({default_}, this));
}

} // namespace orrery::window
