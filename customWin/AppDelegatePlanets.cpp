// Planets: the table's cell handlers, the scene's click and drag reports, creating and
// deleting planets, showing them all, the panel's commands (core/app/PanelCommands.h), and
// undo.
#include "core/app/PanelCommands.h"
#include "core/edit/HistoryView.h"
#include "core/model/Totalsecs.h"
#include "core/settings/SettingsReaders.h"
#include "core/validate/Validators.h"
#include "customWin/AppDelegate.h"
#include "customWin/CheckedQuietly.h"
#include "customWin/PlanetCreationSheet.h"
#include "customWin/PlanetPanel.h"
#include "customWin/Sheet.h"
#include "customWin/StandardEditActions.h"
#include "customWin/Strings.h"
#include "customWin/footView.h"
#include "customWin/mainView.h"
#include "customWin/mainWindow.h"
#include "customWin/sceneView.h"
#include "customWin/searchWindow.h"
#include "customWin/tableView1/PlanetTable.h"

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include <utility>

namespace orrery::window {
namespace {

constexpr int kStatusMs = 3000;

} // namespace

PlanetPanel& AppDelegate::planetPanel() {
    return mainWindow_->content().foot().planetPanel();
}

void AppDelegate::buildPlanetPanel() {
    editor_ = std::make_unique<SystemEditor>(state_.planetArray, sceneview().scene());
    cellHandlers_ = {
        [this](PlanetColumn column, const QString& typed) { textChange(column, typed); },
        [this](int on) { stateChange1_02(on); },
        [this](PlanetColumn column, int index) { indexChange(column, index); },
        [this](const Color& color) {
            colorChange1_09(color);
        }};
    planetModel_ = new PlanetTableModel(state_.planetArray, this);
    tableView1_ = new PlanetTable(*planetModel_, cellHandlers_, &planetPanel());
    planetPanel().setTable(tableView1_);
    accessoryView3_ = new accessoryView3();

    PlanetPanel& panel = planetPanel();
    connect(&panel.createPlanetButton1(), &QPushButton::clicked, this,
            &AppDelegate::openPlanetCreation);
    connect(&panel.deletePlanetButton1(), &QPushButton::clicked, this, &AppDelegate::deletPlanet1);
    connect(&panel.allButton1(), &QCheckBox::toggled, this, &AppDelegate::all1Clicked);
    connect(&panel.exportButton1(), &QPushButton::clicked, this, &AppDelegate::FileExport1);
    connect(tableView1_, &PlanetTable::selectionChangedRows, this, [this] {
        selectedRowEdited_ = false;
        refreshPanelCommands();
    });
    connect(planetModel_, &PlanetTableModel::rowCountChanged, this,
            &AppDelegate::refreshPanelCommands);
    connect(&sceneview(), &sceneView::planetHit, this, &AppDelegate::hitText1Selected);
    connect(&sceneview(), &sceneView::planetMoved, this, &AppDelegate::updateTextPostion);

    QLineEdit& name = accessoryView3_->nameField3();
    connect(&name, &QLineEdit::textChanged, this, [this](const QString& typed) {
        accessoryView3_->createButton3().setEnabled(validateCreatePlanet(typed.toStdString()));
    });
    connect(&accessoryView3_->createButton3(), &QPushButton::clicked, this,
            &AppDelegate::create3Clicked);
    connect(&accessoryView3_->cancelButton3(), &QPushButton::clicked, this,
            &AppDelegate::cancel3Clicked);

    refreshPanelCommands();
}

void AppDelegate::textChange(PlanetColumn column, const QString& typed) {
    const PlanetKey key = kPlanetColumns[static_cast<std::size_t>(column)].key;
    afterCellEdit(editor_->editText(tableView1_->selectedRow(), key, typed.toStdString()));
}

void AppDelegate::stateChange1_02(int on) {
    afterCellEdit(editor_->editState(tableView1_->selectedRow(), on));
}

void AppDelegate::indexChange(PlanetColumn column, int index) {
    const PlanetKey key = kPlanetColumns[static_cast<std::size_t>(column)].key;
    afterCellEdit(editor_->editIndex(tableView1_->selectedRow(), key, index));
}

void AppDelegate::colorChange1_09(const Color& color) {
    afterCellEdit(editor_->editColor(tableView1_->selectedRow(), color));
}

void AppDelegate::afterCellEdit(CellOutcome outcome) {
    if (outcome == CellOutcome::refused) {
        showStatus();
        return;
    }
    if (outcome != CellOutcome::stored)
        return;
    planetModel_->rowChanged(static_cast<int>(*tableView1_->selectedRow()));
    selectedRowEdited_ = true;
    refreshPanelCommands();
}

// Every refusal shows the status line for three seconds of its own; an earlier timer is
// not cancelled, so the line hides three seconds after the first of quick refusals.
void AppDelegate::showStatus(const QString& line) {
    planetPanel().statusLabel1().setText(line.isEmpty() ? text("invalidValueStatus") : line);
    planetPanel().statusLabel1().show();
    QTimer::singleShot(kStatusMs, this, [this] { planetPanel().statusLabel1().hide(); });
}

void AppDelegate::hitText1Selected(const QString& tsecs) {
    tableView1_->selectRow(editor_->planetClicked(tsecs.toStdString()));
}

void AppDelegate::updateTextPostion(const QString& tsecs, const QString& x, const QString& y,
                                    const QString& z) {
    const std::optional<std::size_t> row = editor_->planetDragged(
        tsecs.toStdString(), x.toStdString(), y.toStdString(), z.toStdString());
    if (!row)
        return;
    planetModel_->rowChanged(static_cast<int>(*row));
    tableView1_->selectRow(row);
}

// Delete, Show All and Export, each with its menu items, as the system and the selection
// allow (core/app/PanelCommands.h).
void AppDelegate::refreshPanelCommands() {
    const RowSelection selection = !tableView1_->selectedRow() ? RowSelection::none
                                   : selectedRowEdited_        ? RowSelection::edited
                                                               : RowSelection::chosen;
    const PanelCommands commands = panelCommands(state_.planetArray.records(), selection);
    PlanetPanel& panel = planetPanel();
    panel.deletePlanetButton1().setEnabled(commands.deletePlanet);
    menus_.planetDelete->setEnabled(commands.deletePlanet);
    panel.allButton1().setEnabled(commands.showAll);
    panel.exportButton1().setEnabled(commands.exportPicture);
    menus_.fileExport->setEnabled(commands.exportPicture);
    menus_.fileExportScene->setEnabled(commands.exportPicture);
}

void AppDelegate::openPlanetCreation() {
    saveMenuStatus();
    accessoryView3_->nameField3().clear();
    accessoryView3_->createButton3().setEnabled(false);
    planetAddSheet_ = new PlanetAddSheet(*accessoryView3_, *mainWindow_);
    connect(planetAddSheet_, &QDialog::rejected, this, &AppDelegate::cancel3Clicked);
    planetAddSheet_->open();
    placeAsSheet(*planetAddSheet_, *mainWindow_);
    accessoryView3_->nameField3().setFocus();
    state_.isCreatePlanetOpen = true;
}

void AppDelegate::closeCreationSheet() {
    if (planetAddSheet_ == nullptr)
        return;
    std::exchange(planetAddSheet_, nullptr)->finish();
    state_.isCreatePlanetOpen = false;
    loadMenuStatus();
    // What the sheet changed counts over what the menus were before it.
    refreshPanelCommands();
    focusTable();
}

void AppDelegate::create3Clicked() {
    const QString name = accessoryView3_->nameField3().text();
    if (!validateCreatePlanet(name.toStdString()))
        return;
    const std::size_t row = editor_->createPlanet(std::to_string(Totalsecs()), name.toStdString());
    planetModel_->rowInserted(static_cast<int>(row));
    closeCreationSheet();
}

void AppDelegate::cancel3Clicked() {
    closeCreationSheet();
}

void AppDelegate::deletPlanet1() {
    const std::optional<std::size_t> row = tableView1_->selectedRow();
    if (!row)
        return;
    if (generalSwitch(settings_.checkboxArray, GeneralSwitch::deleteWithoutAsking)) {
        deletPlanet2();
        return;
    }
    saveMenuStatus();
    const QString name = QString::fromStdString(state_.planetArray.at(*row).name);
    askOnSheet(*mainWindow_, textWith("deletePlanetMsg", name), text("deletePlanetInformative"),
               {text("deletePlanetYes"), text("deletePlanetNo")}, [this](int response) {
                   if (response == kFirstButton)
                       deletPlanet2();
                   else
                       loadMenuStatus();
               });
}

void AppDelegate::deletPlanet2() {
    const std::optional<std::size_t> row = tableView1_->selectedRow();
    if (!editor_->deletePlanet(row))
        return;
    planetModel_->rowRemoved(static_cast<int>(*row));
    loadMenuStatus();
    selectedRowEdited_ = false;
    refreshPanelCommands();
    focusTable();
}

void AppDelegate::all1Clicked(bool on) {
    editor_->showAll(on);
    planetModel_->allRowsChanged();
    refreshPanelCommands();
    focusTable();
}

void AppDelegate::focusTable() {
    tableView1_->setFocus(Qt::OtherFocusReason);
}

void AppDelegate::reloadPlanets() {
    planetModel_->reload();
    refreshPanelCommands();
}

// Undo and Redo take back a field's own typing first. The system's history is reached
// only while no sheet or panel is up, as the items' enabled state says.
void AppDelegate::undoClicked() {
    if (QLineEdit* field = focusedField(); field != nullptr && field->isUndoAvailable()) {
        field->undo();
        return;
    }
    if (menus_.editUndo->isEnabled())
        showHistoryStep(editor_->undo(), true);
}

void AppDelegate::redoClicked() {
    if (QLineEdit* field = focusedField(); field != nullptr && field->isRedoAvailable()) {
        field->redo();
        return;
    }
    if (menus_.editRedo->isEnabled())
        showHistoryStep(editor_->redo(), false);
}

// The items name the step they would take back or do again.
void AppDelegate::refreshHistoryItems() {
    const bool noSheet = state_.menuArray.empty();
    const EditHistory& history = editor_->history();
    const std::pair<QAction*, const EditStep*> items[] = {{menus_.editUndo, history.nextUndo()},
                                                          {menus_.editRedo, history.nextRedo()}};
    for (const auto& [item, step] : items) {
        const bool undo = item == menus_.editUndo;
        item->setEnabled(noSheet && step != nullptr);
        item->setText(step == nullptr ? text(undo ? "makeMenuEditUndo" : "makeMenuEditRedo")
                                      : textWith(undo ? "undoStepTitle" : "redoStepTitle",
                                                 text(std::string(stepNameKey(*step)).c_str())));
    }
}

// After an undo or a redo: the table shows the records again, the same row selected when
// there still is one, and every control follows what the system now is.
void AppDelegate::showHistoryStep(const EditStep* step, bool undone) {
    if (step == nullptr)
        return;
    if (step->document)
        showDocumentSettings();
    if (const std::optional<bool> box = showAllBoxAfter(*step, undone))
        setCheckedQuietly(planetPanel().allButton1(), *box);
    if (step->camera && state_.popover5shown)
        showCameraSettings();
    if (step->light) {
        state_.lightColor = sceneview().scene().lightState().color;
        if (state_.popover4shown)
            showLightSettings();
    }
    const std::optional<std::size_t> selected = tableView1_->selectedRow();
    planetModel_->reload();
    if (selected && *selected < state_.planetArray.size())
        tableView1_->selectRow(selected);
    selectedRowEdited_ = false;
    refreshPanelCommands();
}

} // namespace orrery::window
