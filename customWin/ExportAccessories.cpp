#include "customWin/ExportAccessories.h"

#include "core/export/ExportFormat.h"
#include "customWin/Accessibility.h"
#include "customWin/PercentSlider.h"
#include "customWin/Strings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>

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
    nameChoices(*formats_, label->text());
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 8, 0, 8);
    layout->addWidget(label, 0, 0);
    layout->addWidget(formats_, 0, 1);
    layout->addWidget(include_, 1, 1);
    layout->setColumnStretch(2, 1);
}

accessoryView2::accessoryView2(QWidget* parent)
    : QWidget(parent), compression_(new PercentSlider(QStringLiteral("compressSlider2"),
                                                      QStringLiteral("compressLabel2"), this)) {
    setObjectName(QStringLiteral("accessoryView2"));
    auto* label = new QLabel(text("exportCompressionLabel"), this);
    label->setBuddy(&compressSlider2());
    compressSlider2().setAccessibleName(label->text());
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 4, 8, 4);
    layout->addWidget(label);
    layout->addWidget(compression_, 1);
}

QSlider& accessoryView2::compressSlider2() {
    return compression_->slider();
}

} // namespace orrery::window
