#pragma once

#include "customWin/AppDelegate.h"
#include "customWin/tableView1/CellDelegates.h"

#include <QPixmap>
#include <QRect>
#include <QString>

#include <utility>
#include <vector>

// What both picture sets need: letting the window settle, grabbing parts of the screen,
// and making or opening a system as a person would.
namespace orrery::screenshots {

// Lets the window settle: events handled, the scene drawn, the compositor caught up.
void settle();

// A part of the screen, at the screen's device pixels.
QPixmap grab(const QRect& area);
// Writes a picture and prints the file's path.
void save(const QPixmap& picture, const QString& path);
// Grabs a part of the screen into a file.
void save(const QRect& area, const QString& path);

// The window and whatever pops up over it, `below` more pixels under it.
void saveWindow(QWidget& window, const QString& path, int below = 0);

// A planet made as a person makes one: the create button, a name, the sheet's button;
// then its cells typed into.
void createPlanet(window::AppDelegate& app, const QString& name,
                  const std::vector<std::pair<window::PlanetColumn, QString>>& cells);

// Four planets of different sizes, styles and surfaces, with the second row selected.
void createSmallSystem(window::AppDelegate& app);

// Opens the package as a person would, by handing it to the window.
void openSystem(window::AppDelegate& app, const QString& package);

// The open pop-up (a menu, a popover) once it has settled, or null.
QWidget* openPopup();
void closePopup();

// The guide's pictures and the tour's pictures, into `out`, from the started window.
void makeGuidePictures(window::AppDelegate& app, const QString& out, const QString& package);
void makeTourPictures(window::AppDelegate& app, const QString& out, const QString& package);

} // namespace orrery::screenshots
