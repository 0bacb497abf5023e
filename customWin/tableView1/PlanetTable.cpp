#include "customWin/tableView1/PlanetTable.h"

#include "customWin/Strings.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>

namespace orrery::window {
namespace {

constexpr int kRowHeight = 26;
constexpr std::array<int, kPlanetColumnCount> kColumnWidths{170, 56, 110, 118, 84, 84, 84, 76, 60};

} // namespace

PlanetTable::PlanetTable(PlanetTableModel& model, const CellHandlers& handlers, QWidget* parent)
    : QTableView(parent), model_(model) {
    setObjectName(QStringLiteral("tableView1"));
    setAccessibleName(text("accessiblePlanetTable"));
    setModel(&model);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    // Tab leaves the table for the next control of the window; the arrows move in it.
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(kRowHeight);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsMovable(false);
    horizontalHeader()->setMinimumSectionSize(40);
    for (int column = 0; column < kPlanetColumnCount; ++column)
        horizontalHeader()->resizeSection(column, kColumnWidths[static_cast<std::size_t>(column)]);
    horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);

    setItemDelegateForColumn(0, new TextCellDelegate(handlers, this));
    setItemDelegateForColumn(1, new StateCellDelegate(handlers, this));
    setItemDelegateForColumn(2,
                             new ChoiceCellDelegate(MetalPopupButton::Kind::style, handlers, this));
    setItemDelegateForColumn(
        3, new ChoiceCellDelegate(MetalPopupButton::Kind::surface, handlers, this));
    for (int column = 4; column <= 7; ++column)
        setItemDelegateForColumn(column, new TextCellDelegate(handlers, this));
    setItemDelegateForColumn(8, new ColorCellDelegate(handlers, this));

    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        showControls();
        emit selectionChangedRows();
    });
    // The controls go before a reset, while their row still means what it meant: a reset
    // does not take persistent editors with it, and they would stay over a row that is no
    // longer selected, reporting to the selected one. A removed row takes its editors along.
    connect(&model, &QAbstractItemModel::modelAboutToBeReset, this, [this] { closeControls(); });
    connect(&model, &QAbstractItemModel::rowsRemoved, this, [this] { showControls(); });
    connect(&model, &QAbstractItemModel::rowsInserted, this, [this] { showControls(); });
}

std::optional<std::size_t> PlanetTable::selectedRow() const {
    const QModelIndexList rows = selectionModel()->selectedRows();
    if (rows.isEmpty())
        return std::nullopt;
    return static_cast<std::size_t>(rows.first().row());
}

void PlanetTable::selectRow(std::optional<std::size_t> row) {
    if (!row || static_cast<int>(*row) >= model_.rowCount()) {
        clearSelection();
        return;
    }
    const QModelIndex first = model_.index(static_cast<int>(*row), 0);
    selectionModel()->setCurrentIndex(first, QItemSelectionModel::ClearAndSelect |
                                                 QItemSelectionModel::Rows);
    scrollTo(first);
}

QWidget* PlanetTable::control(PlanetColumn column) const {
    if (controlsRow_ < 0)
        return nullptr;
    return indexWidget(model_.index(controlsRow_, static_cast<int>(column)));
}

void PlanetTable::showControls() {
    const std::optional<std::size_t> selected = selectedRow();
    const int row = selected ? static_cast<int>(*selected) : -1;
    if (row == controlsRow_ && (row < 0 || control(PlanetColumn::name) != nullptr))
        return;
    closeControls();
    controlsRow_ = row;
    if (row >= 0)
        for (int column = 0; column < kPlanetColumnCount; ++column)
            openPersistentEditor(model_.index(row, column));
}

void PlanetTable::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    const bool activates =
        key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_F2 || key == Qt::Key_Space;
    QWidget* cell = activates
                        ? control(orrery::window::columnAt(std::max(0, currentIndex().column())))
                        : nullptr;
    if (cell == nullptr)
        return QTableView::keyPressEvent(event);
    if (auto* field = qobject_cast<QLineEdit*>(cell)) {
        field->setFocus(Qt::ShortcutFocusReason);
        field->selectAll();
    } else if (auto* button = qobject_cast<QAbstractButton*>(cell)) {
        button->click();
    }
    event->accept();
}

bool PlanetTable::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
    if (trigger == CurrentChanged && !pressing_)
        return false;
    return QTableView::edit(index, trigger, event);
}

void PlanetTable::mousePressEvent(QMouseEvent* event) {
    pressing_ = true;
    QTableView::mousePressEvent(event);
    pressing_ = false;
}

void PlanetTable::closeControls() {
    if (controlsRow_ >= 0 && controlsRow_ < model_.rowCount())
        for (int column = 0; column < kPlanetColumnCount; ++column)
            closePersistentEditor(model_.index(controlsRow_, column));
    controlsRow_ = -1;
}

} // namespace orrery::window
