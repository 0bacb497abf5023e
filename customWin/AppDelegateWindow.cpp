// The main window's chrome: the title bar, the document size fields and
// the resize around the document, full screen, and the stored frame.
#include "core/app/DocumentArea.h"
#include "core/model/TextNumber.h"
#include "customWin/AppDelegate.h"
#include "customWin/Background/BackgroundView10.h"
#include "customWin/FieldValidity.h"
#include "customWin/Strings.h"
#include "customWin/TitleBar.h"
#include "customWin/gradationWindow.h"
#include "customWin/headerView.h"
#include "customWin/mainView.h"
#include "customWin/mainWindow.h"
#include "customWin/screenView.h"
#include "customWin/searchWindow.h"

#include <QLineEdit>
#include <QScreen>

#include <limits>

namespace orrery::window {
namespace {

// Every size the window's own resizing gives, one after another, is one step to undo.
constexpr int kWindowResizeMergeKey = std::numeric_limits<int>::max();

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
    titleBar_ = new TitleBar(&mainWindow_->content());
    titleBar_->setTitle(appName_);
    connect(titleBar_, &TitleBar::closeClicked, this, &AppDelegate::closeWindowClicked);
    connect(titleBar_, &TitleBar::minimizeClicked, this, &AppDelegate::minimizeWindowClicked);
    connect(titleBar_, &TitleBar::zoomClicked, this, &AppDelegate::maximizeWindowClicked);
    connect(titleBar_, &TitleBar::fullScreenClicked, this, &AppDelegate::fullWindowClicked);
    titleBar_->setFullScreenOffered(state_.canEnterFull);
    titleBar_->show();
    windowWillResize();
}

void AppDelegate::windowWillResize() {
    if (titleBar_ == nullptr)
        return;
    titleBar_->spanWidth(mainWindow_->width());
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
    titleBar_->hide();
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
    titleBar_->show();
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
