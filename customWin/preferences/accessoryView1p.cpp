#include "customWin/preferences/accessoryView1p.h"

#include "core/export/ExportFormat.h"
#include "customWin/Accessibility.h"
#include "customWin/PercentSlider.h"
#include "customWin/Strings.h"
#include "customWin/preferences/FolderChoice.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>
#include <QVBoxLayout>

namespace orrery::window {
namespace {

constexpr int kMargin = 20;

constexpr std::array<const char*, kGeneralSwitchCount> kGeneralKeys{
    "controlPreferencesGeneral1",  "controlPreferencesGeneral2",  "controlPreferencesGeneral3",
    "controlPreferencesGeneral4",  "controlPreferencesGeneral5",  "controlPreferencesGeneral6",
    "controlPreferencesGeneral7",  "controlPreferencesGeneral8",  "controlPreferencesGeneral9",
    "controlPreferencesGeneral10", "controlPreferencesGeneral11", "controlPreferencesGeneral12"};

QGroupBox* groupBox(const char* name, const char* titleKey, QWidget* parent) {
    auto* box = new QGroupBox(text(titleKey), parent);
    box->setObjectName(QLatin1String(name));
    return box;
}

// A tab's page: its boxes from the top, with the room left over at the foot.
QWidget* tabPage(const QList<QWidget*>& parts) {
    auto* page = new QWidget();
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(16);
    for (QWidget* part : parts)
        layout->addWidget(part);
    layout->addStretch(1);
    return page;
}

QString path(const std::filesystem::path& folder) {
    return QString::fromStdString(folder.string());
}

} // namespace

accessoryView1p::accessoryView1p()
    : tabs_(new QTabWidget(this)), close_(new QPushButton(text("controlPreferencesClose1"), this)),
      save_(new QPushButton(text("controlPreferencesSave1"), this)) {
    setObjectName(QStringLiteral("accessoryView1p"));
    tabs_->setObjectName(QStringLiteral("tabView1p"));
    tabs_->setDocumentMode(false);
    tabs_->addTab(makeGeneralTab(), text("controlPreferencesTabName0"));
    tabs_->addTab(makeFoldersTab(), text("controlPreferencesTabName1"));
    tabs_->addTab(makeExportingTab(), text("controlPreferencesTabName2"));
    close_->setObjectName(QStringLiteral("closeButton1p"));
    save_->setObjectName(QStringLiteral("saveButton1p"));
    save_->setDefault(true);

    auto* title = new QLabel(text("preferencesTitle"), this);
    title->setObjectName(QStringLiteral("preferencesTitle"));
    QFont bold = title->font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() * 1.15);
    title->setFont(bold);
    auto* someChanges = new QLabel(text("controlPreferencesSomeLabel"), this);
    someChanges->setObjectName(QStringLiteral("somechangesLabel1"));
    someChanges->setWordWrap(true);
    QPalette dim = someChanges->palette();
    dim.setColor(QPalette::WindowText, dim.color(QPalette::Disabled, QPalette::WindowText));
    someChanges->setPalette(dim);

    auto* buttons = new QHBoxLayout();
    buttons->setSpacing(8);
    buttons->addWidget(someChanges, 1);
    buttons->addSpacing(12);
    buttons->addWidget(close_);
    buttons->addWidget(save_);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, 16, kMargin, 16);
    layout->setSpacing(12);
    layout->addWidget(title);
    layout->addWidget(tabs_, 1);
    layout->addLayout(buttons);
}

QWidget* accessoryView1p::makeGeneralTab() {
    auto* page = new QWidget();
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(10);
    for (std::size_t i = 0; i < kGeneralSwitchCount; ++i) {
        auto* box = new QCheckBox(text(kGeneralKeys[i]), page);
        box->setObjectName(
            QStringLiteral("generalCheckbox%1p").arg(i + 1, 2, 10, QLatin1Char('0')));
        general_[i] = box;
        layout->addWidget(box);
    }
    layout->addStretch(1);
    return page;
}

QWidget* accessoryView1p::makeFoldersTab() {
    auto* open = groupBox("openBox1p", "controlPreferencesOpenfolderTitle", nullptr);
    openFolder_ = new FolderChoice(1, text("controlPreferencesOpenfolderLabel"),
                                   text("controlPreferencesOpenfolderDefault"), open);
    (new QVBoxLayout(open))->addWidget(openFolder_);
    auto* destination = groupBox("exportBox1p", "controlPreferencesExportfolderTitle", nullptr);
    exportFolder_ = new FolderChoice(2, text("controlPreferencesExportfolderLabel"),
                                     text("controlPreferencesExportfolderDefault"), destination);
    (new QVBoxLayout(destination))->addWidget(exportFolder_);
    return tabPage({open, destination});
}

QWidget* accessoryView1p::makeExportingTab() {
    auto* box = groupBox("exportingBox1p", "controlPreferencesExportingBox", nullptr);
    format_ = new QComboBox(box);
    format_->setObjectName(QStringLiteral("exportPopup1p"));
    nameChoices(*format_, text("controlPreferencesExportingSelection"));
    format_->setToolTip(text("controlPreferencesExportingSelection"));
    for (const ExportFormatInfo& format : kExportFormats)
        format_->addItem(
            QString::fromUtf8(format.name.data(), static_cast<qsizetype>(format.name.size())));
    compression_ = new PercentSlider(QStringLiteral("compressSlider2p"),
                                     QStringLiteral("compressLabel2p"), box);
    compression_->slider().setAccessibleName(text("controlPreferencesExportingLabel2"));

    auto* formatLabel = new QLabel(text("controlPreferencesExportingLabel1"), box);
    formatLabel->setObjectName(QStringLiteral("exportingLabel1p"));
    formatLabel->setBuddy(format_);
    auto* compressionLabel = new QLabel(text("controlPreferencesExportingLabel2"), box);
    compressionLabel->setObjectName(QStringLiteral("exportingLabel2p"));
    compressionLabel->setBuddy(&compression_->slider());
    auto* form = new QFormLayout(box);
    form->setHorizontalSpacing(12);
    form->setVerticalSpacing(12);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(formatLabel, format_);
    form->addRow(compressionLabel, compression_);
    return tabPage({box});
}

void accessoryView1p::showValues(const PreferencesValues& values) {
    openFolder_->setFolder(path(values.openFolder));
    exportFolder_->setFolder(path(values.exportFolder));
    format_->setCurrentIndex(values.formatRow);
    compression_->setValue(values.compression);
    for (std::size_t i = 0; i < general_.size(); ++i)
        general_[i]->setChecked(values.general[i]);
}

void accessoryView1p::setGeneralSwitch(GeneralSwitch which, bool on) {
    general_[generalPosition(which)]->setChecked(on);
}

PreferencesValues accessoryView1p::values() const {
    PreferencesValues values;
    values.openFolder = openFolder_->folder().toStdString();
    values.exportFolder = exportFolder_->folder().toStdString();
    values.formatRow = format_->currentIndex();
    values.compression = compression_->slider().value();
    for (std::size_t i = 0; i < general_.size(); ++i)
        values.general[i] = general_[i]->isChecked();
    return values;
}

} // namespace orrery::window
