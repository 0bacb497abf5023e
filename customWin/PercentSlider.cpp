#include "customWin/PercentSlider.h"

#include "customWin/Strings.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSlider>

namespace orrery::window {
namespace {

QString percentText(int value) {
    return textWith("compressionPercent", QString::number(value));
}

} // namespace

PercentSlider::PercentSlider(const QString& sliderName, const QString& labelName, QWidget* parent)
    : QWidget(parent), slider_(new QSlider(Qt::Horizontal, this)), percent_(new QLabel(this)) {
    slider_->setObjectName(sliderName);
    slider_->setRange(0, 100);
    percent_->setObjectName(labelName);
    // Room for "100%", so that the slider does not move as the number grows.
    percent_->setMinimumWidth(percent_->fontMetrics().horizontalAdvance(percentText(100)) + 6);
    percent_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(slider_, 1);
    layout->addWidget(percent_);
    showPercent(slider_->value());
    connect(slider_, &QSlider::valueChanged, this, &PercentSlider::showPercent);
}

void PercentSlider::setValue(int percent) {
    slider_->setValue(percent);
    showPercent(slider_->value());
}

void PercentSlider::showPercent(int percent) {
    percent_->setText(percentText(percent));
}

} // namespace orrery::window
