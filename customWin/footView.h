#pragma once

#include <QWidget>

namespace orrery::window {

class PlanetPanel;

// Below the document area: the planet panel, which holds the planet table and its buttons,
// and the window's bottom border.
class footView : public QWidget {
    Q_OBJECT
public:
    explicit footView(QWidget* parent);

    static constexpr int kBottomBorder = 22;
    static constexpr int kPanelGap = 8;

    PlanetPanel& planetPanel() { return *panel_; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    PlanetPanel* panel_;
};

} // namespace orrery::window
