#include "customWin/PlanetCreationSheet.h"

#include "customWin/Strings.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace orrery::window {

accessoryView3::accessoryView3()
    : title_(new QLabel(text("createPlanetTitle"), this)),
      label_(new QLabel(text("createPlanetNameLabel"), this)), name_(new QLineEdit(this)),
      create_(new QPushButton(text("createPlanetCreate"), this)),
      cancel_(new QPushButton(text("createPlanetCancel"), this)) {
    setObjectName(QStringLiteral("accessoryView3"));
    title_->setObjectName(QStringLiteral("titlebox3"));
    QFont bold = title_->font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() * 1.15);
    title_->setFont(bold);
    QPalette blue = title_->palette();
    blue.setColor(QPalette::WindowText, QColor(110, 160, 255));
    title_->setPalette(blue);
    name_->setObjectName(QStringLiteral("nameField3"));
    label_->setBuddy(name_);
    create_->setObjectName(QStringLiteral("createButton3"));
    create_->setDefault(true);
    cancel_->setObjectName(QStringLiteral("cancelButton3"));

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->setVerticalSpacing(12);
    layout->addWidget(title_, 0, 0, 1, 4);
    layout->addWidget(label_, 1, 0);
    layout->addWidget(name_, 1, 1, 1, 3);
    layout->setRowStretch(2, 1);
    layout->addWidget(cancel_, 3, 2);
    layout->addWidget(create_, 3, 3);
    layout->setColumnStretch(1, 1);
}

} // namespace orrery::window
