#include "customWin/mainView.h"

#include "core/app/DocumentArea.h"
#include "customWin/Background/BackgroundView10.h"
#include "customWin/footView.h"
#include "customWin/headerView.h"
#include "customWin/sceneView.h"
#include "customWin/screenView.h"

#include <QPainter>

namespace orrery::window {

topView1::topView1(QWidget* parent)
    : QWidget(parent), screen_(new screenView(this)), scene_(new sceneView(*screen_, this)) {
    setObjectName(QStringLiteral("topView1"));
    // The scene's window draws the backdrop under the planets; the backdrop's own widget
    // keeps its state and its size.
    screen_->hide();
}

void topView1::showDocumentAt(const QRect& place) {
    place_ = place;
    layOutDocument();
    update();
}

void topView1::resizeEvent(QResizeEvent*) {
    layOutDocument();
}

void topView1::layOutDocument() {
    const int inset = kDocumentFrame / 2;
    const QRect inside = rect().adjusted(inset, inset, -inset, -inset);
    const QRect picture = place_.isEmpty() ? inside : place_.translated(inset, inset) & inside;
    screen_->setGeometry(picture);
    scene_->setGeometry(picture);
}

void topView1::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(QColor(255, 255, 255, 70));
    const QRect picture = scene_->geometry();
    painter.drawRect(picture.adjusted(-1, -1, 0, 0));
}

mainView::mainView(QWidget* parent)
    : QWidget(parent), background_(new BackgroundView10(this)), header_(new headerView(this)),
      document_(new topView1(this)), foot_(new footView(this)) {
    setObjectName(QStringLiteral("mainView"));
}

void mainView::setTitleStripShown(bool shown) {
    titleStripShown_ = shown;
    layOut();
}

void mainView::resizeEvent(QResizeEvent*) {
    layOut();
}

void mainView::layOut() {
    const int title = titleStripShown_ ? kTitleStrip : 0;
    background_->setGeometry(rect());
    header_->setGeometry(0, title, width(), kHeaderHeight);
    const int documentTop = title + kHeaderHeight;
    const int documentHeight = height() - kWindowExtraHeight + (kTitleStrip - title);
    document_->setGeometry(kSideMargin, documentTop, width() - kWindowExtraWidth, documentHeight);
    const int footTop = documentTop + documentHeight;
    foot_->setGeometry(0, footTop, width(), height() - footTop);
    emit laidOut();
}

} // namespace orrery::window
