// Documents: New, Open, Save and Save As, packages handed over on the command line or
// dropped on the window, and the question about unsaved changes. Packages are read and
// written on a worker thread while the progress sheet turns; every change of the model and
// the scene happens here, on the main thread, once the work is back.
#include "core/export/PackageScene.h"
#include "core/package/ProjectPackage.h"
#include "core/package/SystemSource.h"
#include "core/settings/SettingsReaders.h"
#include "customWin/AppDelegate.h"
#include "customWin/CheckedQuietly.h"
#include "customWin/FieldValidity.h"
#include "customWin/FreeAway.h"
#include "customWin/PackageDialogs.h"
#include "customWin/PlanetPanel.h"
#include "customWin/ProgressSheet.h"
#include "customWin/Sheet.h"
#include "customWin/Strings.h"
#include "customWin/TitleBar.h"
#include "customWin/headerView.h"
#include "customWin/mainView.h"
#include "customWin/mainWindow.h"
#include "customWin/sceneView.h"
#include "customWin/tableView1/PlanetTable.h"

#include "core/edit/DocumentState.h"

#include <QAction>
#include <QCheckBox>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>

namespace orrery::window {
namespace {

struct WorkResult {
    bool ok = false;
    std::string error;
    OpenedProject project;
    SceneNodeBatch planetNodes; // made on the worker from an opened package's planets
};

QString packageName(const std::string& path) {
    return QString::fromStdString(packageDisplayName(path));
}

} // namespace

void AppDelegate::connectDocumentActions() {
    connect(menus_.fileNew, &QAction::triggered, this, &AppDelegate::createNewSystem1);
    connect(menus_.fileOpen, &QAction::triggered, this, &AppDelegate::openProject1);
    connect(menus_.fileSave, &QAction::triggered, this, [this] { saveProject1(); });
    connect(menus_.fileSaveAs, &QAction::triggered, this, [this] { saveAsProject1(); });
    menus_.fileSave->setEnabled(false);
    document_ = std::make_unique<DocumentState>(editor_->history());
    editor_->history().setChangeHandler([this] { updateTitle(); });
    mainWindow_->setCloseGuard([this] { return mayClose(); });
    connect(mainWindow_, &mainWindow::packagesDropped, this, &AppDelegate::openFiles);
}

bool AppDelegate::hasUnsavedChanges() const {
    return document_->isModified();
}

// The title label names the program and the package, with a mark while there are changes
// that are not saved; the Undo and Redo items name their steps.
void AppDelegate::updateTitle() {
    const QString title = QString::fromStdString(
        document_->title(appName_.toStdString(), text("unsavedMarker").toStdString()));
    titleBar_->setTitle(title);
    mainWindow_->setWindowTitle(title);
    refreshHistoryItems();
}

// Unsaved changes are offered for saving first; then New asks its own question.
void AppDelegate::createNewSystem1() {
    askToSaveChanges([this] { askToClearSystem(); });
}

void AppDelegate::askToClearSystem() {
    if (generalSwitch(settings_.checkboxArray, GeneralSwitch::clearWithoutAsking)) {
        createNewSystem2();
        return;
    }
    saveMenuStatus();
    askOnSheet(*mainWindow_, text("createNewSystemMsg"), text("createNewSystemInformative"),
               {text("createNewSystemYes"), text("createNewSystemCancel")}, [this](int answer) {
                   if (answer == kFirstButton)
                       createNewSystem2();
                   else
                       loadMenuStatus();
               });
}

// Clears the system. The package path stays, so that a following Save writes over the
// last package without asking.
void AppDelegate::createNewSystem2() {
    removeAllPlanets();
    setCheckedQuietly(planetPanel().allButton1(), false);
    setCameraDefault();
    setLightDefault();
    loadMenuStatus();
    document_->cleared();
    refreshPanelCommands();
    focusTable();
}

void AppDelegate::removeAllPlanets() {
    replacePlanets(sceneview().scene().replacePlanets({}), {});
}

// The table's records replaced at once, and what the system held before (nodes already taken
// out of the scene, and records) freed on a worker: 100,000 planets do not hold up the window.
void AppDelegate::replacePlanets(SceneNodeBatch oldNodes, std::vector<PlanetRecord> records) {
    freeAway(std::move(oldNodes), state_.planetArray.replaceAll(std::move(records)));
    reloadPlanets();
}

void AppDelegate::saveProject1(std::function<void()> then) {
    const std::string& path = document_->path();
    if (path.empty() || !QFileInfo::exists(QString::fromStdString(path))) {
        saveAsProject1(std::move(then));
        return;
    }
    writePackage(QString::fromStdString(path), false, std::move(then));
}

// Save As starts in the export folder, where the pictures of the system go.
void AppDelegate::saveAsProject1(std::function<void()> then) {
    saveMenuStatus();
    const QString folder = exportPanelFolder();
    savePackagePanel(*mainWindow_, folder,
                     {textWith("saveDocumentMessage", appName_),
                      textWith("saveDocumentWindow", appName_), text("saveDocumentFile")},
                     [this, then = std::move(then)](const QString& path) {
                         if (path.isEmpty())
                             loadMenuStatus();
                         else
                             writePackage(path, true, then);
                     });
}

ProjectDocument AppDelegate::currentDocument() {
    const DocumentSettings& settings = editor_->document();
    return projectDocument(sceneview().scene(), state_.planetArray, settings.width, settings.height,
                           settings.background, state_.lightColor);
}

void AppDelegate::writePackage(const QString& path, bool saveAs, std::function<void()> then) {
    const ProjectDocument document = currentDocument();
    const std::string target = path.toStdString();
    runWithProgress<WorkResult>(
        *mainWindow_, text("saveDocumentLabel"),
        [document, target] {
            WorkResult result;
            result.ok = writeProjectPackage(target, document, result.error);
            return result;
        },
        [this, path, saveAs, then](WorkResult& result) {
            if (saveAs)
                loadMenuStatus();
            if (!result.ok) {
                showFailure(text("saveFailedMsg"), result.error);
                return;
            }
            state_.projectpath = path.toStdString();
            document_->saved(state_.projectpath);
            menus_.fileSave->setEnabled(true);
            if (then)
                then();
        });
}

void AppDelegate::openProject1() {
    askToSaveChanges([this] {
        saveMenuStatus();
        const QString folder = QString::fromStdString(
            openFolder(settings_.preferenceArray, documentsFolder()).string());
        openPackagePanel(*mainWindow_, folder, {text("openDocTitle"), text("openDocMessage"), {}},
                         [this](const QString& path) {
                             if (path.isEmpty())
                                 loadMenuStatus();
                             else
                                 openProject2(path);
                         });
    });
}

// Packages handed over on the command line or dropped on the window: the first is opened.
void AppDelegate::openFiles(const QStringList& paths) {
    if (paths.isEmpty())
        return;
    const QString first = paths.first();
    askToSaveChanges([this, first] {
        saveMenuStatus();
        openProject2(first);
    });
}

// The package is read whole and checked on the worker; the system on screen is replaced
// only once that succeeded, so a broken package costs nothing.
void AppDelegate::openProject2(const QString& path) {
    const std::string source = path.toStdString();
    runWithProgress<WorkResult>(
        *mainWindow_, text("openDocMessageLabel"),
        [source] {
            WorkResult result;
            result.ok = readSystem(source, result.project, result.error);
            if (result.ok)
                result.planetNodes = packagePlanetNodes(result.project);
            return result;
        },
        [this, path](WorkResult& result) {
            loadMenuStatus();
            if (result.ok)
                openProject3(path, result.project, std::move(result.planetNodes));
            else
                showFailure(text("openFailedMsg"), result.error);
            refreshPanelCommands();
        });
}

// A size that passes the reading check is shown at its own size (scaled to fit where the
// window cannot hold it); one that fails stays in its red fields, and the picture keeps the
// size it had.
void AppDelegate::openProject3(const QString& path, OpenedProject& project,
                               SceneNodeBatch planetNodes) {
    const auto& settings = project.settings;
    DocumentSettings opened = editor_->document();
    opened.width = settings[setting::width];
    opened.height = settings[setting::height];
    if (project.checks.background)
        opened.background = packageBackground(project);
    editor_->resetDocument(opened);
    showDocumentSettings();
    headerView& header = mainWindow_->content().header();
    markValid(header.widthField1(), project.checks.width);
    markValid(header.heightField1(), project.checks.height);

    SceneNodeBatch oldNodes =
        applyPackageToScene(sceneview().scene(), project, std::move(planetNodes));
    showOpenedCameraAndLight(project);
    replacePlanets(std::move(oldNodes), std::move(project.planets));

    // A picture is only read: the system it carries gets a package name at its first save.
    if (QFileInfo(path).isDir()) {
        state_.projectpath = path.toStdString();
        document_->opened(state_.projectpath);
    } else {
        state_.projectpath.clear();
        document_->openedPicture();
    }
    menus_.fileSave->setEnabled(true);
    focusTable();
}

void AppDelegate::showFailure(const QString& message, const std::string& reason) {
    askOnSheet(*mainWindow_, message, QString::fromStdString(reason), {text("alertOK")},
               [](int) {});
}

// Before the system on screen is replaced or the program ends, unsaved changes are offered
// for saving; `then` runs once they are saved or given up, and not at all on Cancel. The
// question names the package it would write; a system that is no package yet (never saved,
// or cleared by New) is offered Save As, so that no package it did not name is written over.
void AppDelegate::askToSaveChanges(std::function<void()> then) {
    if (!hasUnsavedChanges()) {
        then();
        return;
    }
    saveMenuStatus();
    const std::optional<std::string> package = document_->package();
    const QString name = package ? packageName(*package) : text("saveDocumentFile");
    const QString save = package ? text("saveChangesSave") : text("saveChangesSaveAs");
    askOnSheet(*mainWindow_, textWith("saveChangesMsg", name), text("saveChangesInformative"),
               {save, text("saveChangesDiscard"), text("saveChangesCancel")},
               [this, package, then = std::move(then)](int answer) {
                   loadMenuStatus();
                   if (answer == kFirstButton && package &&
                       QFileInfo::exists(QString::fromStdString(*package)))
                       writePackage(QString::fromStdString(*package), false, then);
                   else if (answer == kFirstButton)
                       saveAsProject1(then);
                   else if (answer == kFirstButton + 1) // Discard
                       then();
               });
}

bool AppDelegate::mayClose() {
    if (closingConfirmed_ || !hasUnsavedChanges())
        return true;
    askToSaveChanges([this] {
        closingConfirmed_ = true;
        mainWindow_->close();
    });
    return false;
}

} // namespace orrery::window
