// The main window's chrome: the title bar and its rollover, the document size fields and
// the resize around the document, full screen, and the stored frame.
#include "core/app/DocumentArea.h"
#include "core/model/TextNumber.h"
#include "customWin/AppDelegate.h"
#include "customWin/Background/BackgroundView10.h"
#include "customWin/FieldValidity.h"
#include "customWin/ImageButton.h"
#include "customWin/Strings.h"
#include "customWin/TitleLabel.h"
#include "customWin/gradationWindow.h"
#include "customWin/headerView.h"
#include "customWin/mainView.h"
#include "customWin/mainWindow.h"
#include "customWin/screenView.h"
#include "customWin/searchWindow.h"

#include <QApplication>
#include <QLineEdit>
#include <QScreen>

#include <limits>

namespace orrery::window {
namespace {

// Every size the window's own resizing gives, one after another, is one step to undo.
constexpr int kWindowResizeMergeKey = std::numeric_limits<int>::max();

constexpr int kButtonSize = 16;
constexpr int kButtonTop = 4; // 20 below the window's top edge, counted to the bottom
constexpr int kTitleTop = 3;  // 28 below the top edge, counted to the bottom
constexpr int kTitleHeight = 25;

ImageButton* makeTitleButton(const char* name, const char* image, const char* accessibleKey,
                             QWidget* parent) {
    auto* button = new ImageButton(QLatin1String(image), parent);
    button->setObjectName(QLatin1String(name));
    button->setAccessibleName(text(accessibleKey));
    button->setToolTip(button->accessibleName());
    button->resize(kButtonSize, kButtonSize);
    return button;
}

} // namespace

void AppDelegate::registerWindowObservers() {
    mainWindow& window = *mainWindow_;
    connect(&window, &mainWindow::resized, this, &AppDelegate::windowDidReize);
    connect(&window, &mainWindow::liveResizeEnded, this, &AppDelegate::windowDidEndLiveResize);
    connect(&window, &mainWindow::closing, this, &AppDelegate::windowWillClose);
    connect(&window, &mainWindow::enteredFullScreen, this, &AppDelegate::windowDidEnterFullscreen);
    connect(&window, &mainWindow::leftFullScreen, this, &AppDelegate::windowDidExitFullscreen);
    headerView& header = window.content().header();
    connect(&header.widthField1(), &QLineEdit::returnPressed, this,
            [this, &header] { sizeFieldReturn(header.widthField1()); });
    connect(&header.heightField1(), &QLineEdit::returnPressed, this,
            [this, &header] { sizeFieldReturn(header.heightField1()); });
}

void AppDelegate::buildTitleBar() {
    QWidget& content = mainWindow_->content();
    titleLabel0_ = new TitleLabel(&content);
    titleLabel0_->setObjectName(QStringLiteral("titleLabel0"));
    titleLabel0_->setText(appName_);
    closeButton0_ =
        makeTitleButton("closeButton0", "close-active-color", "accessibleCloseButton", &content);
    minButton0_ = makeTitleButton("minButton0", "minimize-active-color", "accessibleMinimizeButton",
                                  &content);
    maxButton0_ =
        makeTitleButton("maxButton0", "zoom-active-color", "accessibleZoomButton", &content);
    fullButton0_ =
        makeTitleButton("fullButton0", "fullImage", "accessibleFullScreenButton", &content);
    connect(closeButton0_, &QAbstractButton::clicked, this, &AppDelegate::closeWindowClicked);
    connect(minButton0_, &QAbstractButton::clicked, this, &AppDelegate::minimizeWindowClicked);
    connect(maxButton0_, &QAbstractButton::clicked, this, &AppDelegate::maximizeWindowClicked);
    connect(fullButton0_, &QAbstractButton::clicked, this, &AppDelegate::fullWindowClicked);
    connect(titleLabel0_, &TitleLabel::doubleClicked, this, &AppDelegate::maximizeWindowClicked);
    for (ImageButton* button : {closeButton0_, minButton0_, maxButton0_}) {
        connect(button, &ImageButton::pointerEntered, this, &AppDelegate::mouseEntered);
        connect(button, &ImageButton::pointerLeft, this, &AppDelegate::mouseExited);
    }
    for (QWidget* control : titleBarControls())
        control->show();
    fullButton0_->setVisible(state_.canEnterFull);
    windowWillResize();
}

QList<QWidget*> AppDelegate::titleBarControls() const {
    return {titleLabel0_, closeButton0_, minButton0_, maxButton0_, fullButton0_};
}

// Hovering any of the three window buttons lights all three.
void AppDelegate::mouseEntered() {
    closeButton0_->setImage(QStringLiteral("close-rollover-color"));
    minButton0_->setImage(QStringLiteral("minimize-rollover-color"));
    maxButton0_->setImage(QStringLiteral("zoom-rollover-color"));
}

void AppDelegate::mouseExited() {
    closeButton0_->setImage(QStringLiteral("close-active-color"));
    minButton0_->setImage(QStringLiteral("minimize-active-color"));
    maxButton0_->setImage(QStringLiteral("zoom-active-color"));
}

void AppDelegate::windowWillResize() {
    if (titleLabel0_ == nullptr)
        return;
    const int width = mainWindow_->width();
    titleLabel0_->setGeometry(0, kTitleTop, width, kTitleHeight);
    closeButton0_->move(8, kButtonTop);
    minButton0_->move(28, kButtonTop);
    maxButton0_->move(48, kButtonTop);
    fullButton0_->move(width - 20, kButtonTop);
    // The buttons lie over the title, which spans the whole width.
    for (QWidget* control : titleBarControls())
        control->raise();
    mainWindow_->content().update();
}

void AppDelegate::windowDidEndLiveResize() {
    windowWillResize();
    saveWindowFrame();
    refreshViews();
}

void AppDelegate::windowDidReize() {
    if (state_.enteringFull) {
        // The full-screen size arrives after the change of state: show it once it is known.
        if (mainWindow_->isFullScreen())
            windowDidEnterFullscreen();
        return;
    }
    windowWillResize();
    refreshViews();
    showDocumentSize();
}

void AppDelegate::refreshViews() {
    mainWindow_->content().backview10().update();
    screenview().refreshMe();
}

// After the window changed size. When the person changed it (by an edge, maximising, full
// screen), the picture takes the document area's new size, one step to undo for a whole
// gesture; a size the program set is only shown.
void AppDelegate::showDocumentSize() {
    if (!mainWindow_->resizeIsOwn()) {
        const QSize area = mainWindow_->content().documentArea().size();
        const PixelSize picture{area.width() - kDocumentFrame, area.height() - kDocumentFrame};
        editor_->setDocumentSize(formatFixed(picture.width, 0), formatFixed(picture.height, 0),
                                 kWindowResizeMergeKey);
        shownDocument_ = picture;
    }
    showDocumentFields();
    fitDocument();
}

void AppDelegate::showDocumentFields() {
    headerView& header = mainWindow_->content().header();
    const DocumentSettings& document = editor_->document();
    header.widthField1().setText(QString::fromStdString(document.width));
    header.heightField1().setText(QString::fromStdString(document.height));
    markValid(header.widthField1(), true);
    markValid(header.heightField1(), true);
}

// The picture in the document area: at its own size, or scaled down whole where the window
// cannot hold it, which the header then says.
void AppDelegate::fitDocument() {
    topView1& area = mainWindow_->content().documentArea();
    const QSize inside = area.size() - QSize(kDocumentFrame, kDocumentFrame);
    const DocumentFit fit = orrery::fitDocument(shownDocument_, {inside.width(), inside.height()});
    area.showDocumentAt(QRect(fit.left, fit.top, fit.size.width, fit.size.height));
    mainWindow_->content().header().setScaleNote(
        fit.percent < 100 ? textWith("documentShownScaled", QString::number(fit.percent))
                          : QString());
}

// Return in a size field: a valid size is a change of the document, one step to undo.
void AppDelegate::sizeFieldReturn(QLineEdit& field) {
    headerView& header = mainWindow_->content().header();
    const DocumentAxis axis =
        &field == &header.widthField1() ? DocumentAxis::width : DocumentAxis::height;
    const bool valid = checkDocumentSide(field.text().toStdString(), axis) == SideCheck::valid;
    markValid(field, valid);
    if (!valid)
        return;
    editor_->setDocumentSize(header.widthField1().text().toStdString(),
                             header.heightField1().text().toStdString());
    setTopFrame();
}

// The window around the document's size; a size the window cannot hold is shown scaled.
void AppDelegate::setTopFrame() {
    if (const std::optional<PixelSize> picture = pictureSize(editor_->document()))
        shownDocument_ = *picture;
    const PixelSize window = windowSizeForDocument(shownDocument_);
    QRect frame(mainWindow_->pos(), QSize(window.width, window.height));
    // Never beyond the screen: the picture is shown scaled within what fits.
    if (const QScreen* screen = mainWindow_->screen()) {
        const QRect available = screen->availableGeometry();
        frame.setSize(frame.size().boundedTo(available.size()));
        frame.moveRight(std::min(frame.right(), available.right()));
        frame.moveBottom(std::min(frame.bottom(), available.bottom()));
        if (frame.topLeft() != mainWindow_->pos())
            mainWindow_->move(frame.topLeft());
    }
    mainWindow_->resizeOwn(frame.size());
    refreshViews();
    fitDocument();
}

// After an undo, a redo or an opened package: the fields, the backdrop and the window
// show the document's settings again.
void AppDelegate::showDocumentSettings() {
    const DocumentSettings& document = editor_->document();
    setSceneBackground(document.background);
    showDocumentFields();
    setTopFrame();
}

void AppDelegate::closeWindowClicked() {
    mainWindow_->close();
}

void AppDelegate::minimizeWindowClicked() {
    mainWindow_->showMinimized();
}

void AppDelegate::maximizeWindowClicked() {
    if (mainWindow_->isFullScreen())
        return;
    if (mainWindow_->isMaximized())
        mainWindow_->showNormal();
    else
        mainWindow_->showMaximized();
}

// The chrome follows the window's state (windowDidEnterFullscreen), so that full screen asked
// for by the window manager's own key looks as full screen asked for here.
void AppDelegate::fullWindowClicked() {
    if (mainWindow_->isFullScreen())
        mainWindow_->showNormal();
    else
        mainWindow_->enterFullScreen();
}

void AppDelegate::windowWillEnterFullscreen() {
    state_.enteringFull = true;
    for (QWidget* control : titleBarControls())
        control->hide();
    mainWindow_->content().setTitleStripShown(false);
    menus_.windowFullScreen->setChecked(true);
}

void AppDelegate::windowDidEnterFullscreen() {
    if (!state_.enteringFull)
        windowWillEnterFullscreen();
    mainWindow_->content().update();
    refreshViews();
    showDocumentSize();
}

void AppDelegate::windowDidExitFullscreen() {
    state_.enteringFull = false;
    mainWindow_->content().setTitleStripShown(true);
    for (QWidget* control : titleBarControls())
        control->show();
    fullButton0_->setVisible(state_.canEnterFull);
    menus_.windowFullScreen->setChecked(false);
    windowWillResize();
    refreshViews();
    showDocumentSize();
}

void AppDelegate::windowWillClose() {
    // Secondary windows close with the main one; the frames they had are kept.
    if (gradationWindow_ != nullptr && gradationWindow_->isVisible())
        gradationWindow_->close();
    if (searchWindow_ != nullptr && searchWindow_->isVisible())
        searchWindow_->close();
    if (!mainWindow_->isFullScreen())
        saveWindowFrame();
}

} // namespace orrery::window
