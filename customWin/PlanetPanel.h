#pragma once

#include <QWidget>

class QCheckBox;
class QLabel;
class QPushButton;

namespace orrery::window {

class PlanetTable;

// The panel under the document area: the buttons that create and delete planets and show
// or hide them all, the status line that says when a value was refused, the camera and
// light buttons, and the planet table.
class PlanetPanel : public QWidget {
    Q_OBJECT
public:
    explicit PlanetPanel(QWidget* parent);

    // The table arrives from the controller, which owns its model.
    void setTable(PlanetTable* table);

    QPushButton& createPlanetButton1() { return *create_; }
    QPushButton& deletePlanetButton1() { return *delete_; }
    QCheckBox& allButton1() { return *all_; }
    QLabel& statusLabel1() { return *status_; }
    QPushButton& cameraButton() { return *camera_; }
    QPushButton& lightButton() { return *light_; }
    QPushButton& exportButton1() { return *export_; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QPushButton* create_;
    QPushButton* delete_;
    QCheckBox* all_;
    QLabel* status_;
    QPushButton* camera_;
    QPushButton* light_;
    QPushButton* export_;
    PlanetTable* table_ = nullptr;
};

} // namespace orrery::window
