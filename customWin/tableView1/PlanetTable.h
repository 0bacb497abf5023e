#pragma once

#include "customWin/tableView1/CellDelegates.h"
#include "customWin/tableView1/PlanetTableModel.h"

#include <QTableView>

#include <optional>

namespace orrery::window {

// The planet table (tableView1): one row per planet, the nine cells painted by their
// delegates, and the live controls only in the selected row, so that a person edits a
// planet by selecting its row and then changing a cell. Even 100,000 rows stay instant:
// rows have one fixed height and only one row has widgets.
class PlanetTable : public QTableView {
    Q_OBJECT
public:
    PlanetTable(PlanetTableModel& model, const CellHandlers& handlers, QWidget* parent);

    std::optional<std::size_t> selectedRow() const;
    // Selects the row alone and scrolls it into view; none clears the selection.
    void selectRow(std::optional<std::size_t> row);
    // The live control of a cell of the selected row, or null.
    QWidget* control(PlanetColumn column) const;

signals:
    // The set of selected rows changed (and with it which row has live controls).
    void selectionChangedRows();

protected:
    // Return, Enter, F2 and Space work the control of the current cell in the selected row:
    // a text cell takes the keyboard, the other controls act as if clicked.
    void keyPressEvent(QKeyEvent* event) override;
    // A control takes the keyboard when a click lands on its row, not when the arrows
    // move through the rows: the arrows stay with the table.
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void showControls();
    void closeControls();

    PlanetTableModel& model_;
    int controlsRow_ = -1;
    bool pressing_ = false;
};

} // namespace orrery::window
