#include "customWin/ExportAccessories.h"

#include "core/export/ExportFormat.h"
#include "customWin/Strings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSlider>

namespace orrery::window {

accessoryView1::accessoryView1(QWidget* parent)
    : QWidget(parent), formats_(new QComboBox(this)),
      include_(new QCheckBox(text("exportIncludeBackground"), this)) {
    setObjectName(QStringLiteral("accessoryView1"));
    formats_->setObjectName(QStringLiteral("exportPopup1"));
    include_->setObjectName(QStringLiteral("includeButton1"));
    for (const ExportFormatInfo& format : kExportFormats)
        formats_->addItem(
            QString::fromUtf8(format.name.data(), static_cast<qsizetype>(format.name.size())));
    auto* label = new QLabel(text("controlAccessory1Label1"), this);
    label->setBuddy(formats_);
    formats_->setAccessibleName(label->text());
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 8, 0, 8);
    layout->addWidget(label, 0, 0);
    layout->addWidget(formats_, 0, 1);
    layout->addWidget(include_, 1, 1);
    layout->setColumnStretch(2, 1);
}

accessoryView2::accessoryView2(QWidget* parent)
    : QWidget(parent), slider_(new QSlider(Qt::Horizontal, this)), percent_(new QLabel(this)) {
    setObjectName(QStringLiteral("accessoryView2"));
    slider_->setObjectName(QStringLiteral("compressSlider2"));
    slider_->setRange(0, 100);
    percent_->setObjectName(QStringLiteral("compressLabel2"));
    percent_->setMinimumWidth(44);
    auto* label = new QLabel(text("exportCompressionLabel"), this);
    label->setBuddy(slider_);
    slider_->setAccessibleName(label->text());
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 4, 8, 4);
    layout->addWidget(label);
    layout->addWidget(slider_, 1);
    layout->addWidget(percent_);
    connect(slider_, &QSlider::valueChanged, percent_,
            [this](int value) { percent_->setText(QString::number(value) + QLatin1Char('%')); });
}

} // namespace orrery::window
