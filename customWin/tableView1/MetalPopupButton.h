#pragma once

#include <QToolButton>

#include <functional>

class QMenu;

namespace orrery::window {

// The pop-up button of a style or surface cell: it shows the chosen picture and number,
// and its menu offers "- Select one -" and every choice with its picture. Choosing an item
// reports its index; the button shows the new choice when the table has stored it.
class MetalPopupButton : public QToolButton {
    Q_OBJECT
public:
    enum class Kind { style, surface };
    MetalPopupButton(Kind kind, QWidget* parent);

    void setIndex(long index);
    long index() const { return index_; }
    // The menu, built on first use: 83 styles or 49 surfaces with index 0 first.
    QMenu& choices();

signals:
    void indexChosen(int index);

private:
    Kind kind_;
    long index_ = -1;
    QMenu* menu_ = nullptr;
};

// The picture a cell shows for a choice, at cell size.
QPixmap cellSwatch(MetalPopupButton::Kind kind, long index);

} // namespace orrery::window
