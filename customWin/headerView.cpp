#include "customWin/headerView.h"

#include "customWin/FieldValidity.h"

#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>

namespace orrery::window {
namespace {

constexpr int kFieldWidth = 58;
constexpr int kFieldHeight = 24;
constexpr int kGap = 6;

QLineEdit* makeSizeField(const char* name, QWidget* parent) {
    auto* field = new QLineEdit(parent);
    field->setObjectName(QLatin1String(name));
    field->setAlignment(Qt::AlignCenter);
    field->setMaxLength(6);
    // A light field, so that the red and black of the size check read clearly.
    field->setStyleSheet(QStringLiteral(
        "QLineEdit { background: #f4f5f8; border: 1px solid #5b6785; border-radius: 5px;"
        " padding: 0 4px; selection-background-color: #3d6fd6; }"
        "QLineEdit:focus { border: 1px solid #7aa2ff; }"));
    markValid(*field, true);
    return field;
}

QLabel* makeLabel(QWidget* parent) {
    auto* label = new QLabel(parent);
    QPalette colours = label->palette();
    colours.setColor(QPalette::WindowText, QColor(200, 208, 228));
    label->setPalette(colours);
    return label;
}

} // namespace

headerView::headerView(QWidget* parent)
    : QWidget(parent), menuBar_(new QMenuBar(this)), scaleNote_(makeLabel(this)),
      sizeLabel_(makeLabel(this)), width_(makeSizeField("widthField1", this)),
      times_(makeLabel(this)), height_(makeSizeField("heightField1", this)) {
    setObjectName(QStringLiteral("headerView"));
    menuBar_->setObjectName(QStringLiteral("menuBar"));
    menuBar_->setNativeMenuBar(false);
    sizeLabel_->setObjectName(QStringLiteral("documentSizeLabel"));
    sizeLabel_->setBuddy(width_);
    scaleNote_->setObjectName(QStringLiteral("documentScaleNote"));
    scaleNote_->hide();
}

void headerView::setScaleNote(const QString& note) {
    scaleNote_->setText(note);
    scaleNote_->setVisible(!note.isEmpty());
    resizeEvent(nullptr);
}

void headerView::setTexts(const QString& sizeLabel, const QString& times) {
    sizeLabel_->setText(sizeLabel);
    times_->setText(times);
    resizeEvent(nullptr);
}

void headerView::resizeEvent(QResizeEvent*) {
    const int margin = 20;
    const int fieldTop = (height() - kFieldHeight) / 2;
    int right = width() - margin;
    height_->setGeometry(right - kFieldWidth, fieldTop, kFieldWidth, kFieldHeight);
    right -= kFieldWidth + kGap;
    times_->adjustSize();
    times_->move(right - times_->width(), (height() - times_->height()) / 2);
    right -= times_->width() + kGap;
    width_->setGeometry(right - kFieldWidth, fieldTop, kFieldWidth, kFieldHeight);
    right -= kFieldWidth + 2 * kGap;
    sizeLabel_->adjustSize();
    sizeLabel_->move(right - sizeLabel_->width(), (height() - sizeLabel_->height()) / 2);
    right -= sizeLabel_->width() + 2 * kGap;
    if (!scaleNote_->text().isEmpty()) {
        scaleNote_->adjustSize();
        scaleNote_->move(right - scaleNote_->width(), (height() - scaleNote_->height()) / 2);
        right -= scaleNote_->width() + 2 * kGap;
    }
    const int barHeight = menuBar_->sizeHint().height();
    menuBar_->setGeometry(margin - 8, (height() - barHeight) / 2, std::max(0, right - margin + 8),
                          barHeight);
}

} // namespace orrery::window
