#include "customWin/AppDelegate.h"

#include "core/app/TourPages.h"
#include "customWin/Strings.h"
#include "customWin/introduction/NumberBadge.h"
#include "customWin/introduction/introductionWindow.h"
#include "customWin/mainWindow.h"
#include "customWin/preferences/accessoryView1p.h"

#include <QCheckBox>
#include <QPushButton>

namespace orrery::window {
namespace {

constexpr qreal kBadgeRadius = 4.0;

QPixmap tourPicture(const TourPage& page) {
    return QPixmap(QStringLiteral(":/tour/%1").arg(QLatin1String(page.picture)));
}

QImage badge(int page, const QColor& colour, qreal devicePixelRatio) {
    return roundCorners7(stringImage7(QString::number(page), colour, kBadgeSize, devicePixelRatio),
                         kBadgeRadius);
}

} // namespace

// Made when first shown. It opens on the first page with the back button off and an
// orange badge; turning back to that page later shows the red one.
introductionWindow& AppDelegate::tourWindow() {
    if (introductionWindow_ != nullptr)
        return *introductionWindow_;
    introductionWindow_ = new introductionWindow(mainWindow_);
    introductionWindow& tour = *introductionWindow_;
    showTourPage(1, kBadgeOrange);
    tour.backButton7().setEnabled(false);
    connect(&tour.forwardButton7(), &QPushButton::clicked, this, &AppDelegate::forward7Clicked);
    connect(&tour.backButton7(), &QPushButton::clicked, this, &AppDelegate::back7Clicked);
    connect(&tour.noshowButton7(), &QCheckBox::toggled, this, &AppDelegate::dontshow7Clicked);
    connect(&tour, &introductionWindow::closed, this,
            [this] { state_.introductionWindowOpen = false; });
    return tour;
}

void AppDelegate::openIntroduction() {
    introductionWindow& tour = tourWindow();
    // Over the middle of the main window, whose child it is.
    const QRect main = mainWindow_->frameGeometry();
    tour.move(main.center() - QPoint(tour.width() / 2, tour.height() / 2));
    tour.show();
    tour.raise();
    tour.activateWindow();
    state_.introductionWindowOpen = true;
}

void AppDelegate::showTourPage(int page, const QColor& badgeColour) {
    state_.currentPage = page;
    const TourPage& shown = tourPage(page);
    const QString description = page == 1 ? textWith(shown.textKey, appName_) : text(shown.textKey);
    introductionWindow& tour = *introductionWindow_;
    tour.showPage(tourPicture(shown), description,
                  badge(page, badgeColour, tour.devicePixelRatioF()), QString::number(page));
}

void AppDelegate::turnTourPage(const std::optional<TourTurn>& turn) {
    if (!turn)
        return;
    showTourPage(turn->page, tourPage(turn->page).redBadge ? kBadgeRed : kBadgeOrange);
    tourWindow().setButtons(turn->buttons);
}

void AppDelegate::forward7Clicked() {
    turnTourPage(tourForward(state_.currentPage));
}

void AppDelegate::back7Clicked() {
    turnTourPage(tourBack(state_.currentPage));
}

// Once the box has been switched at all, the tour stays off at later starts, whichever way
// the box now stands, until the Preferences say otherwise.
void AppDelegate::dontshow7Clicked(bool on) {
    if (accessoryView1p_ != nullptr)
        accessoryView1p_->setGeneralSwitch(GeneralSwitch::skipTour, on);
    settings_.saveData2("1", generalField(GeneralSwitch::skipTour));
}

} // namespace orrery::window
