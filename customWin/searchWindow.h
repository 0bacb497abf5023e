#pragma once

#include "customWin/FramedWindow.h"

#include <QString>

#include <functional>
#include <utility>
#include <vector>

class QLabel;
class QLineEdit;
class QListWidget;

namespace orrery::window {

// Find a planet by part of its name: the planets whose names contain the typed text
// (ignoring case) are listed; choosing one reports its tsecs.
class searchWindow : public FramedWindow {
    Q_OBJECT
public:
    // Each planet as (tsecs, name), in table order.
    using PlanetNames = std::function<std::vector<std::pair<QString, QString>>()>;
    searchWindow(PlanetNames planets, QWidget* parent);

    void setSearchText(const QString& part);
    // Chooses the next (+1) or previous (-1) match, wrapping around.
    void chooseNext(int step);
    // Lists the matches again, after the planets changed.
    void refresh();

signals:
    void planetChosen(const QString& tsecs);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void chooseRow(int row);

    PlanetNames planets_;
    QLineEdit* field_;
    QListWidget* matches_;
    QLabel* empty_;
};

} // namespace orrery::window
