#pragma once

#include <QObject>

#include <vector>

class QToolButton;

namespace orrery::window {

// The keyboard in a grid of choices: the arrows move between neighbours (the first choice
// heads the grid across its whole width), Return, Enter and Space choose.
class ChoiceGridKeys : public QObject {
    Q_OBJECT
public:
    ChoiceGridKeys(std::vector<QToolButton*> choices, int columns, QObject* parent);
    // Puts the keyboard on the choice with this index.
    void focusChoice(long index);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    long neighbour(long from, int key) const;

    std::vector<QToolButton*> choices_;
    int columns_;
};

} // namespace orrery::window
