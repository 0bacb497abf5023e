#include "customWin/tableView1/MetalPopupButton.h"

#include "core/styles/StyleChoices.h"
#include "core/styles/SurfaceNames.h"
#include "customWin/Strings.h"
#include "customWin/tableView1/ChoiceGridKeys.h"
#include "customWin/tableView1/Swatches.h"

#include <QGridLayout>
#include <QMenu>
#include <QTimer>
#include <QWidgetAction>

#include <algorithm>
#include <vector>

namespace orrery::window {
namespace {

constexpr int kMenuPicture = 64;
constexpr int kCellPicture = 16;
constexpr int kStyleColumns = 10;
constexpr int kSurfaceColumns = 6;

QPixmap menuPicture(MetalPopupButton::Kind kind, long index) {
    return kind == MetalPopupButton::Kind::style ? styleSwatch(index, kMenuPicture)
                                                 : surfaceSwatch(index, kMenuPicture / 2);
}

} // namespace

QPixmap cellSwatch(MetalPopupButton::Kind kind, long index) {
    return kind == MetalPopupButton::Kind::style ? styleSwatch(index, kCellPicture)
                                                 : surfaceSwatch(index, kCellPicture / 2 + 2);
}

MetalPopupButton::MetalPopupButton(Kind kind, QWidget* parent) : QToolButton(parent), kind_(kind) {
    setObjectName(kind == Kind::style ? QStringLiteral("styleMetalPopupButton1_03")
                                      : QStringLiteral("surfaceMetalPopupButton1_04"));
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setAutoRaise(true);
    setFocusPolicy(Qt::NoFocus);
    // Popped up rather than run: the window goes on while the menu is open.
    connect(this, &QToolButton::clicked, this,
            [this] { choices().popup(mapToGlobal(rect().bottomLeft())); });
}

void MetalPopupButton::setIndex(long index) {
    index_ = index;
    const QPixmap picture = cellSwatch(kind_, index);
    setIcon(picture.isNull() ? QIcon() : QIcon(picture));
    setIconSize(picture.isNull() ? QSize() : picture.deviceIndependentSize().toSize());
    setText((index <= 0 ? window::text("selectOne") : QString::number(index)) +
            QStringLiteral("  ▾"));
}

QMenu& MetalPopupButton::choices() {
    if (menu_ != nullptr)
        return *menu_;
    menu_ = new QMenu(this);
    menu_->setObjectName(kind_ == Kind::style ? QStringLiteral("styleMetalMenu1_03")
                                              : QStringLiteral("surfaceMetalMenu1_04"));
    // The choices as a grid of pictures with their numbers, every one in sight at once;
    // "- Select one -" heads it across the whole width.
    auto* grid = new QWidget(menu_);
    auto* layout = new QGridLayout(grid);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->setSpacing(2);
    const long last = kind_ == Kind::style ? kStyleChoices : kSurfaceCount;
    const int columns = kind_ == Kind::style ? kStyleColumns : kSurfaceColumns;
    std::vector<QToolButton*> items;
    for (long i = 0; i <= last; ++i) {
        auto* item = new QToolButton(grid);
        items.push_back(item);
        item->setObjectName(QStringLiteral("choice%1").arg(i));
        item->setAutoRaise(true);
        item->setCheckable(true);
        const QPixmap picture = menuPicture(kind_, i);
        item->setText(i == 0 ? window::text("selectOne") : QString::number(i));
        if (!picture.isNull()) {
            item->setIcon(QIcon(picture));
            item->setIconSize(picture.deviceIndependentSize().toSize());
            item->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        }
        connect(item, &QToolButton::clicked, this, [this, i] {
            menu_->close();
            emit indexChosen(static_cast<int>(i));
        });
        if (i == 0)
            layout->addWidget(item, 0, 0, 1, columns);
        else
            layout->addWidget(item, 1 + static_cast<int>((i - 1) / columns),
                              static_cast<int>((i - 1) % columns));
    }
    auto* action = new QWidgetAction(menu_);
    action->setDefaultWidget(grid);
    menu_->addAction(action);
    auto* keys = new ChoiceGridKeys(std::move(items), columns, menu_);
    connect(menu_, &QMenu::aboutToShow, this, [this, grid, keys] {
        for (auto* item : grid->findChildren<QToolButton*>())
            item->setChecked(item->objectName() == QStringLiteral("choice%1").arg(index_));
        // The keyboard starts on the current choice once the menu is up.
        QTimer::singleShot(0, keys, [this, keys] { keys->focusChoice(std::max(0L, index_)); });
    });
    return *menu_;
}

} // namespace orrery::window
