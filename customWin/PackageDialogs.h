#pragma once

#include <QString>

#include <functional>

class QWidget;

// The open and save panels for project packages, pictures and folders. A package is a
// folder named *.kvx, which a file dialog would walk into like any folder: here entering
// one chooses it. A save panel's name always gets its extension, never lands inside a
// package, and replaces what exists only once the person agreed.
namespace orrery::window {

struct PanelTexts {
    QString title;
    QString message;
    QString suggestedName; // save panels only
};

// Each opens a window-modal panel and calls `chosen` with the path, or with an empty text
// when the person cancelled.
void openPackagePanel(QWidget& window, const QString& folder, const PanelTexts& texts,
                      std::function<void(const QString&)> chosen);
void savePackagePanel(QWidget& window, const QString& folder, const PanelTexts& texts,
                      std::function<void(const QString&)> chosen);

// A save panel for a picture of one type ("png"), with an optional widget under it.
void savePicturePanel(QWidget& window, const QString& folder, const PanelTexts& texts,
                      const QString& fileType, QWidget* accessory,
                      std::function<void(const QString&)> chosen);

// Panels for a table of planets: saved as .tsv, or as .csv when that is typed or chosen;
// opened from either.
void savePlanetRowsPanel(QWidget& window, const QString& folder, const PanelTexts& texts,
                         std::function<void(const QString&)> chosen);
void openPlanetRowsPanel(QWidget& window, const QString& folder, const PanelTexts& texts,
                         std::function<void(const QString&)> chosen);

// A panel for choosing one folder (new folders can be made in it).
void chooseFolderPanel(QWidget& window, const QString& folder, const QString& title,
                       std::function<void(const QString&)> chosen);

} // namespace orrery::window
