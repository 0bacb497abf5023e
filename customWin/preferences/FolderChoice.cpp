#include "customWin/preferences/FolderChoice.h"

#include "customWin/Accessibility.h"
#include "customWin/Strings.h"

#include <QComboBox>
#include <QDir>
#include <QFileIconProvider>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace orrery::window {
namespace {

constexpr int kOtherItem = 1;
constexpr int kIconSize = 16;

} // namespace

FolderChoice::FolderChoice(int number, const QString& label, const QString& defaultTitle,
                           QWidget* parent)
    : QWidget(parent), field_(new QLineEdit(this)), menu_(new QComboBox(this)),
      default_(new QPushButton(defaultTitle, this)) {
    field_->setObjectName(number == 1 ? QStringLiteral("openField1p")
                                      : QStringLiteral("destField2p"));
    menu_->setObjectName(QStringLiteral("systempopup%1p").arg(number));
    default_->setObjectName(QStringLiteral("defaultButton%1p").arg(number));
    // The path is shown whole and can be copied, but a folder is chosen through the menu.
    field_->setReadOnly(true);
    field_->setAccessibleName(label);
    nameChoices(*menu_, label);
    menu_->setIconSize(QSize(kIconSize, kIconSize));
    menu_->setMinimumWidth(220);

    auto* caption = new QLabel(label, this);
    caption->setObjectName(QStringLiteral("boxLabel%1p").arg(number));
    caption->setBuddy(menu_);
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setVerticalSpacing(8);
    layout->addWidget(caption, 0, 0, 1, 3);
    layout->addWidget(menu_, 1, 0);
    layout->addWidget(default_, 1, 2);
    layout->addWidget(field_, 2, 0, 1, 3);
    layout->setColumnStretch(1, 1);

    connect(menu_, &QComboBox::activated, this, [this](int index) {
        if (index == kOtherItem)
            emit otherFolderWanted();
    });
    connect(default_, &QPushButton::clicked, this, &FolderChoice::defaultWanted);
}

QString FolderChoice::folder() const {
    return field_->text();
}

void FolderChoice::setFolder(const QString& path) {
    field_->setText(path);
    field_->setCursorPosition(0);
    const QString name = QDir(path).dirName();
    menu_->clear();
    menu_->addItem(QFileIconProvider().icon(QFileInfo(path)), name.isEmpty() ? path : name);
    menu_->addItem(text("preferencesOther"));
    menu_->setCurrentIndex(0);
}

void FolderChoice::selectShownFolder() {
    menu_->setCurrentIndex(0);
}

} // namespace orrery::window
