#include "customWin/tableView1/ChoiceGridKeys.h"

#include <QKeyEvent>
#include <QToolButton>

#include <algorithm>

namespace orrery::window {

ChoiceGridKeys::ChoiceGridKeys(std::vector<QToolButton*> choices, int columns, QObject* parent)
    : QObject(parent), choices_(std::move(choices)), columns_(columns) {
    for (QToolButton* choice : choices_) {
        choice->setFocusPolicy(Qt::StrongFocus);
        choice->installEventFilter(this);
    }
}

void ChoiceGridKeys::focusChoice(long index) {
    const auto last = static_cast<long>(choices_.size()) - 1;
    choices_[static_cast<std::size_t>(std::clamp(index, 0L, last))]->setFocus(Qt::TabFocusReason);
}

// Choice 0 stands alone above the first row; choice i (from 1) is in row (i - 1) / columns.
long ChoiceGridKeys::neighbour(long from, int key) const {
    const auto last = static_cast<long>(choices_.size()) - 1;
    switch (key) {
    case Qt::Key_Left:
        return std::max(0L, from - 1);
    case Qt::Key_Right:
        return std::min(last, from + 1);
    case Qt::Key_Up:
        return from <= columns_ ? 0 : from - columns_;
    case Qt::Key_Down:
        return from == 0 ? 1 : std::min(last, from + columns_);
    default:
        return from;
    }
}

bool ChoiceGridKeys::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto found = std::find(choices_.begin(), choices_.end(), watched);
    if (found == choices_.end())
        return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    const long at = found - choices_.begin();
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        focusChoice(neighbour(at, key));
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        (*found)->click();
        return true;
    default:
        return false;
    }
}

} // namespace orrery::window
