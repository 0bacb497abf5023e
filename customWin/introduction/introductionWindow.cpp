#include "customWin/introduction/introductionWindow.h"

#include "customWin/Strings.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace orrery::window {
namespace {

// The pictures are screenshots of the window, shown at 16:10 in a frame of this size.
constexpr QSize kPictureSize(560, 350);

} // namespace

introductionWindow::introductionWindow(QWidget* parent)
    : QWidget(parent, Qt::Window), picture_(new QLabel(this)), text_(new QLabel(this)),
      badge_(new QLabel(this)), back_(new QPushButton(text("introductionBack"), this)),
      forward_(new QPushButton(text("introductionForward"), this)),
      noShow_(new QCheckBox(text("controlIntroductionDont"), this)) {
    setObjectName(QStringLiteral("introductionWindow"));
    setWindowTitle(text("introductionTitle"));
    setAccessibleName(windowTitle());
    picture_->setObjectName(QStringLiteral("introView7"));
    picture_->setFixedSize(kPictureSize);
    picture_->setAlignment(Qt::AlignCenter);
    picture_->setStyleSheet(QStringLiteral("background: #12162a; border: 1px solid #3b4464;"
                                           " border-radius: 6px;"));
    text_->setObjectName(QStringLiteral("introductionLabel7"));
    text_->setWordWrap(true);
    text_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    // Room for the longest page's text, so that the window keeps its size as pages turn.
    text_->setMinimumHeight(4 * text_->fontMetrics().lineSpacing());
    badge_->setObjectName(QStringLiteral("countView7"));
    back_->setObjectName(QStringLiteral("backButton7"));
    forward_->setObjectName(QStringLiteral("forwardButton7"));
    forward_->setDefault(true);
    noShow_->setObjectName(QStringLiteral("noshowButton7"));
    QPalette white = noShow_->palette();
    white.setColor(QPalette::WindowText, Qt::white);
    noShow_->setPalette(white);

    auto* buttons = new QHBoxLayout();
    buttons->setSpacing(10);
    buttons->addWidget(noShow_);
    buttons->addStretch(1);
    buttons->addWidget(back_);
    buttons->addWidget(badge_);
    buttons->addWidget(forward_);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 16);
    layout->setSpacing(14);
    layout->addWidget(picture_);
    layout->addWidget(text_, 1);
    layout->addLayout(buttons);
    setFixedSize(sizeHint());
}

void introductionWindow::showPage(const QPixmap& picture, const QString& text, const QImage& badge,
                                  const QString& number) {
    // Scaled once to the pixels of this screen, so that the screenshot stays sharp.
    const qreal ratio = devicePixelRatioF();
    const QSize room = (kPictureSize - QSize(2, 2)) * ratio;
    QPixmap shown = picture.isNull()
                        ? QPixmap()
                        : picture.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    shown.setDevicePixelRatio(ratio);
    picture_->setPixmap(shown);
    text_->setText(text);
    badge_->setPixmap(QPixmap::fromImage(badge));
    badge_->setAccessibleName(number);
}

void introductionWindow::setButtons(TourButtons buttons) {
    switch (buttons) {
    case TourButtons::unchanged:
        return;
    case TourButtons::bothOn:
        back_->setEnabled(true);
        forward_->setEnabled(true);
        return;
    case TourButtons::backOffForwardOn:
        back_->setEnabled(false);
        forward_->setEnabled(true);
        return;
    case TourButtons::forwardOffBackOn:
        back_->setEnabled(true);
        forward_->setEnabled(false);
        return;
    }
}

void introductionWindow::closeEvent(QCloseEvent* event) {
    emit closed();
    QWidget::closeEvent(event);
}

} // namespace orrery::window
