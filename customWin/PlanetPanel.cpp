#include "customWin/PlanetPanel.h"

#include "customWin/Strings.h"
#include "customWin/tableView1/PlanetTable.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

namespace orrery::window {
namespace {

constexpr int kRowHeight = 26;
constexpr int kInset = 6;
constexpr int kGap = 6;

QPushButton* makeButton(const char* name, const char* key, QWidget* parent) {
    auto* button = new QPushButton(text(key), parent);
    button->setObjectName(QLatin1String(name));
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

} // namespace

PlanetPanel::PlanetPanel(QWidget* parent)
    : QWidget(parent), create_(makeButton("createPlanetButton1", "createPlanetButton", this)),
      delete_(makeButton("deletePlanetButton1", "deletePlanetButton", this)),
      all_(new QCheckBox(text("allButton"), this)),
      status_(new QLabel(text("invalidValueStatus"), this)),
      camera_(makeButton("cameraButton5", "cameraButton", this)),
      light_(makeButton("lightButton4", "lightButton", this)),
      export_(makeButton("exportButton1", "exportButton", this)) {
    setObjectName(QStringLiteral("planetPanel"));
    all_->setObjectName(QStringLiteral("allButton1"));
    status_->setObjectName(QStringLiteral("statusLabel1"));
    QPalette warning = status_->palette();
    warning.setColor(QPalette::WindowText, QColor(255, 150, 120));
    status_->setPalette(warning);
    status_->hide();
    create_->setIcon(QIcon::fromTheme(QStringLiteral("list-add")));
    delete_->setIcon(QIcon::fromTheme(QStringLiteral("list-remove")));
    // The one action that leaves the program with a result stands out.
    export_->setStyleSheet(QStringLiteral(
        "QPushButton { background: #3d6fd6; color: white; border: 1px solid #5a86e6;"
        " border-radius: 4px; padding: 0 12px; }"
        "QPushButton:disabled { background: #2a3350; color: #7a84a3; border-color: #3a4466; }"
        "QPushButton:hover:enabled { background: #4a7ce6; }"));
}

void PlanetPanel::setTable(PlanetTable* table) {
    table_ = table;
    table_->setParent(this);
    table_->show();
    resizeEvent(nullptr);
}

void PlanetPanel::resizeEvent(QResizeEvent*) {
    int left = kInset;
    for (QWidget* control : {static_cast<QWidget*>(create_), static_cast<QWidget*>(delete_),
                             static_cast<QWidget*>(all_)}) {
        const int width = control->sizeHint().width();
        control->setGeometry(left, kInset, width, kRowHeight);
        left += width + kGap;
    }
    int right = width() - kInset;
    for (QWidget* control : {static_cast<QWidget*>(export_), static_cast<QWidget*>(light_),
                             static_cast<QWidget*>(camera_)}) {
        const int width = control->sizeHint().width();
        right -= width;
        control->setGeometry(right, kInset, width, kRowHeight);
        right -= kGap;
    }
    status_->setGeometry(left + kGap, kInset, std::max(0, right - left - 2 * kGap), kRowHeight);
    if (table_ != nullptr)
        table_->setGeometry(kInset, kInset + kRowHeight + kGap, width() - 2 * kInset,
                            height() - 2 * kInset - kRowHeight - kGap);
}

} // namespace orrery::window
