#include "customWin/TitleBar.h"

#include "customWin/ImageButton.h"
#include "customWin/Strings.h"
#include "customWin/TitleLabel.h"

namespace orrery::window {
namespace {

constexpr int kButtonSize = 16;
constexpr int kButtonTop = 4; // 20 below the window's top edge, counted to the bottom
constexpr int kTitleTop = 3;  // 28 below the top edge, counted to the bottom
constexpr int kTitleHeight = 25;

ImageButton* makeButton(const char* name, const char* image, const char* accessibleKey,
                        QWidget* parent) {
    auto* button = new ImageButton(QLatin1String(image), parent);
    button->setObjectName(QLatin1String(name));
    button->setAccessibleName(text(accessibleKey));
    button->setToolTip(button->accessibleName());
    button->resize(kButtonSize, kButtonSize);
    return button;
}

} // namespace

TitleBar::TitleBar(QWidget* parent)
    : QWidget(parent), title_(new TitleLabel(this)),
      close_(makeButton("closeButton0", "close-active-color", "accessibleCloseButton", this)),
      minimize_(
          makeButton("minButton0", "minimize-active-color", "accessibleMinimizeButton", this)),
      zoom_(makeButton("maxButton0", "zoom-active-color", "accessibleZoomButton", this)),
      full_(makeButton("fullButton0", "fullImage", "accessibleFullScreenButton", this)) {
    setObjectName(QStringLiteral("titleBar0"));
    title_->setObjectName(QStringLiteral("titleLabel0"));
    connect(close_, &QAbstractButton::clicked, this, &TitleBar::closeClicked);
    connect(minimize_, &QAbstractButton::clicked, this, &TitleBar::minimizeClicked);
    connect(zoom_, &QAbstractButton::clicked, this, &TitleBar::zoomClicked);
    connect(full_, &QAbstractButton::clicked, this, &TitleBar::fullScreenClicked);
    connect(title_, &TitleLabel::doubleClicked, this, &TitleBar::zoomClicked);
    for (ImageButton* button : {close_, minimize_, zoom_}) {
        connect(button, &ImageButton::pointerEntered, this, [this] { showRollover(true); });
        connect(button, &ImageButton::pointerLeft, this, [this] { showRollover(false); });
    }
}

void TitleBar::setTitle(const QString& title) {
    title_->setText(title);
}

void TitleBar::setFullScreenOffered(bool offered) {
    full_->setVisible(offered);
}

void TitleBar::spanWidth(int width) {
    setGeometry(0, 0, width, kHeight);
    raise();
}

// The buttons lie over the title, which spans the whole width.
void TitleBar::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    title_->setGeometry(0, kTitleTop, width(), kTitleHeight);
    close_->move(8, kButtonTop);
    minimize_->move(28, kButtonTop);
    zoom_->move(48, kButtonTop);
    full_->move(width() - 20, kButtonTop);
}

// Hovering any of the three window buttons lights all three.
void TitleBar::showRollover(bool lit) {
    const QString look = lit ? QStringLiteral("rollover") : QStringLiteral("active");
    close_->setImage(QStringLiteral("close-%1-color").arg(look));
    minimize_->setImage(QStringLiteral("minimize-%1-color").arg(look));
    zoom_->setImage(QStringLiteral("zoom-%1-color").arg(look));
}

} // namespace orrery::window
