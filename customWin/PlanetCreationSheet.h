#pragma once

#include "customWin/Sheet.h"
#include "customWin/Strings.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;

namespace orrery::window {

// The contents of the planet creation sheet (accessoryView3): a title, the name field and
// the create and cancel buttons. It is made once and placed into a new sheet each time the
// sheet opens; the create button is live exactly while the name passes its check.
class accessoryView3 : public QWidget {
    Q_OBJECT
public:
    accessoryView3();

    QLineEdit& nameField3() { return *name_; }
    QPushButton& createButton3() { return *create_; }
    QPushButton& cancelButton3() { return *cancel_; }

private:
    QLabel* title_;
    QLabel* label_;
    QLineEdit* name_;
    QPushButton* create_;
    QPushButton* cancel_;
};

// The sheet itself, 340 x 168, made anew for every opening.
class PlanetAddSheet : public ContentSheet {
    Q_OBJECT
public:
    static constexpr int kWidth = 340;
    static constexpr int kHeight = 168;

    PlanetAddSheet(accessoryView3& contents, QWidget& window)
        : ContentSheet(contents, window, {kWidth, kHeight}, text("sheetTitleCreatePlanet"),
                       QStringLiteral("planetAddSheet"), QStringLiteral("planetAddView")) {}
};

} // namespace orrery::window
