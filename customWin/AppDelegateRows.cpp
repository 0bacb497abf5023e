// Planet rows for spreadsheets: Copy and Paste on the planet table, as tab-separated text
// with a header row and as the JSON of `orrery convert`; Export Planets and Import Planets
// with .tsv and .csv files. Reading, checking and writing the rows is the core's.
#include "core/app/AppPaths.h"
#include "core/edit/PlanetRows.h"
#include "core/model/Totalsecs.h"
#include "core/package/PackageFiles.h"
#include "core/package/PackageJson.h"
#include "core/settings/SettingsReaders.h"
#include "customWin/AppDelegate.h"
#include "customWin/MenuBar.h"
#include "customWin/PackageDialogs.h"
#include "customWin/PlanetPanel.h"
#include "customWin/Strings.h"
#include "customWin/mainWindow.h"
#include "customWin/tableView1/PlanetTable.h"
#include "customWin/tableView1/PlanetTableModel.h"
#include "imageio/AtomicWrite.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>

namespace orrery::window {
namespace {

constexpr const char* kPlanetsJsonType = "application/json";
// A table of 100,000 planets takes about 6 MB.
constexpr std::size_t kMaxRowsBytes = std::size_t{64} << 20;

RowFormat formatOfFile(const QString& path) {
    return QFileInfo(path).suffix().compare(QLatin1String("csv"), Qt::CaseInsensitive) == 0
               ? RowFormat::commas
               : RowFormat::tabs;
}

} // namespace

void AppDelegate::connectRowActions() {
    // A text field keeps its own Copy and Paste; the table's rows are copied while the
    // table itself (or a cell control that is no text field) has the keyboard.
    const auto tableHasKeyboard = [this] {
        QWidget* focus = QApplication::focusWidget();
        return focus != nullptr && qobject_cast<QLineEdit*>(focus) == nullptr &&
               (focus == tableView1_ || tableView1_->isAncestorOf(focus));
    };
    connect(menus_.editCopy, &QAction::triggered, this, [this, tableHasKeyboard] {
        if (tableHasKeyboard())
            copyPlanetRows();
    });
    connect(menus_.editPaste, &QAction::triggered, this, [this, tableHasKeyboard] {
        if (tableHasKeyboard())
            pastePlanetRows();
    });
    connect(menus_.fileExportPlanets, &QAction::triggered, this, &AppDelegate::exportPlanetRows);
    connect(menus_.fileImportPlanets, &QAction::triggered, this, &AppDelegate::importPlanetRows);
}

void AppDelegate::copyPlanetRows() {
    std::vector<PlanetRecord> rows;
    for (const QModelIndex& index : tableView1_->selectionModel()->selectedRows())
        rows.push_back(state_.planetArray.at(static_cast<std::size_t>(index.row())));
    if (rows.empty())
        return;
    auto* data = new QMimeData();
    data->setText(QString::fromStdString(writePlanetRows(rows, RowFormat::tabs)));
    data->setData(QLatin1String(kPlanetsJsonType),
                  QByteArray::fromStdString(planetsJson(rows).dump()));
    QApplication::clipboard()->setMimeData(data);
}

// Planets copied here come back from their JSON, exactly; a spreadsheet's come as text.
void AppDelegate::pastePlanetRows() {
    const QMimeData* data = QApplication::clipboard()->mimeData();
    if (data == nullptr)
        return;
    std::string error;
    const std::optional<std::vector<PlanetRecord>> copied =
        data->hasFormat(QLatin1String(kPlanetsJsonType))
            ? planetsFromJsonText(data->data(QLatin1String(kPlanetsJsonType)).toStdString(), error)
            : std::nullopt;
    if (!copied) {
        addPlanetRows(readPlanetRows(data->text().toStdString(), RowFormat::tabs));
        return;
    }
    ReadRows rows;
    for (std::size_t i = 0; i < copied->size(); ++i) {
        if (const auto column = refusedColumn((*copied)[i]))
            rows.refused.push_back({i + 1, std::string(*column)});
        else
            rows.planets.push_back((*copied)[i]);
    }
    addPlanetRows(std::move(rows));
}

// The rows that passed are added as new planets in one step; the refused ones are named
// in the status line.
void AppDelegate::addPlanetRows(ReadRows rows) {
    const std::vector<std::string> identities =
        freshIdentities(state_.planetArray, Totalsecs(), rows.planets.size());
    for (std::size_t i = 0; i < rows.planets.size(); ++i)
        rows.planets[i].tsecs = identities[i];
    editor_->appendPlanets(rows.planets);
    reloadPlanets();
    if (!rows.refused.empty())
        showStatus(
            textWith("rowsRefusedStatus", QString::fromStdString(refusedRowList(rows.refused))));
}

void AppDelegate::exportPlanetRows() {
    askForPath(
        exportPanelFolder(), savePlanetRowsPanel,
        {text("exportPlanetsTitle"), text("exportPlanetsMessage"), text("exportPlanetsFile")},
        [this](const QString& path) {
            const std::string rows =
                writePlanetRows(state_.planetArray.records(), formatOfFile(path));
            const std::string error = imageio::writeFileAtomically(
                path.toStdString(),
                {reinterpret_cast<const std::uint8_t*>(rows.data()), rows.size()});
            if (!error.empty())
                showFailure(text("exportPlanetsFailedMsg"), path.toStdString() + ": " + error);
        });
}

void AppDelegate::importPlanetRows() {
    const QString folder =
        QString::fromStdString(openFolder(settings_.preferenceArray, documentsFolder()).string());
    askForPath(
        folder, openPlanetRowsPanel, {text("importPlanetsTitle"), text("importPlanetsMessage"), {}},
        [this](const QString& path) {
            std::string bytes;
            std::string error;
            if (!readFileBounded(path.toStdString(), kMaxRowsBytes, bytes, error)) {
                showFailure(text("importPlanetsFailedMsg"), path.toStdString() + ": " + error);
                return;
            }
            addPlanetRows(readPlanetRows(bytes, formatOfFile(path)));
            focusTable();
        });
}

} // namespace orrery::window
