#pragma once

#include "core/animate/AnimationPreferences.h"
#include "core/app/AppState.h"
#include "core/app/TourPages.h"
#include "core/edit/DocumentState.h"
#include "core/edit/SystemEditor.h"
#include "core/export/ExportFormat.h"
#include "core/package/ProjectDocument.h"
#include "core/settings/Settings.h"
#include "core/settings/SettingsReaders.h"
#include "customWin/MenuBar.h"
#include "customWin/tableView1/CellDelegates.h"

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

class QColor;
class QLineEdit;
class QUrl;
class QPrinter;

namespace orrery {
struct ReadRows;
} // namespace orrery

namespace orrery::window {

class CameraPopover;
class ContentSheet;
class FolderChoice;
class FramedWindow;
class LightPopover;
struct PanelTexts;
class PlanetAddSheet;
class PlanetPanel;
class PlanetTable;
class PlanetTableModel;
class TitleBar;
class accessoryView1p;
class accessoryView3;
class introductionWindow;
class gradationWindow;
class mainView;
class mainWindow;
class sceneView;
class screenView;
class searchWindow;

// The application's controller: it owns the main window and the secondary windows, the
// menus and the settings lists, and carries out what the user asks of them. Its body is
// split by subsystem: start-up and shut-down here, the menus in AppDelegateMenus.cpp, the
// window's chrome and frames in AppDelegateWindow.cpp, the secondary windows in
// AppDelegateSecondary.cpp. Every rule that needs no widget lives in core/.
class AppDelegate : public QObject {
    Q_OBJECT
public:
    AppDelegate();
    ~AppDelegate() override;

    // Start-up, in its fixed order: settings folder and databases, the window's frame,
    // the window shown, menus and controls, the title bar, the document size.
    void applicationWillFinishLaunching();

    const QString& readAppname() const { return appName_; }
    AppState& state() { return state_; }
    Settings& settings() { return settings_; }
    mainWindow& window() { return *mainWindow_; }
    sceneView& sceneview();
    screenView& screenview();
    const MenuItems& menus() const { return menus_; }

    // Menu state around sheets and questions (see core/app/MenuStatus.h).
    void saveMenuStatus();
    void loadMenuStatus();

    // The Scene menu. A background chosen there is a change to undo; setSceneBackground
    // only shows one.
    void hideaxesScene();
    void chooseBackground(long index);
    void setSceneBackground(long index);
    void sceneColorAllOff();

    // The Help menu: a question first, then the page in the browser.
    void userguideHelp();
    void supportHelp();

    // Title bar and window chrome.
    void closeWindowClicked();
    void minimizeWindowClicked();
    void maximizeWindowClicked();
    void fullWindowClicked();
    void setTopFrame();
    void saveWindowFrame();

    void openGradationWindow();
    void openSearchWindow();

    // Planets (AppDelegatePlanets.cpp): the table's handlers, the scene's reports, creating
    // and deleting, showing all, the panel's commands and undo.
    PlanetTable& tableView1() { return *tableView1_; }
    SystemEditor& editor() { return *editor_; }
    void textChange(PlanetColumn column, const QString& text);
    void stateChange1_02(int state);
    void indexChange(PlanetColumn column, int index);
    void colorChange1_09(const Color& color);
    void hitText1Selected(const QString& tsecs);
    void updateTextPostion(const QString& tsecs, const QString& x, const QString& y,
                           const QString& z);
    void openPlanetCreation();
    void create3Clicked();
    void cancel3Clicked();
    void deletPlanet1();
    void deletPlanet2();
    void all1Clicked(bool on);
    void undoClicked();
    void redoClicked();
    // The table shows the planet list again after it changed as a whole.
    void reloadPlanets();

    // Documents (AppDelegateDocuments.cpp). `then` runs once a save succeeded.
    void createNewSystem1();
    void createNewSystem2();
    void saveProject1(std::function<void()> then = {});
    void saveAsProject1(std::function<void()> then = {});
    void openProject1();
    void openFiles(const QStringList& paths);
    bool hasUnsavedChanges() const;
    const DocumentState& document() const { return *document_; }

    // Planet rows for spreadsheets (AppDelegateRows.cpp): Copy and Paste on the table,
    // Export Planets and Import Planets.
    void copyPlanetRows();
    void pastePlanetRows();
    void exportPlanetRows();
    void importPlanetRows();

    // Export and printing (AppDelegateExport.cpp, AppDelegatePrint.cpp).
    void FileExport1();
    void FileExportAnimation();
    // File > Export Scene: the scene as a .glb for 3D tools.
    void exportScene();
    // Where the panels that write pictures, scenes, animations and rows begin: the export
    // folder of the preferences.
    QString exportPanelFolder() const;
    void printPlain();
    void pageSetup();
    QPrinter& printer();

    // Camera and light (AppDelegateCamera.cpp).
    void show1bClicked();
    void show1Clicked();
    void setCameraDefault();
    void setLightDefault();
    void colorChanged4Clicked(const Color& color);

    // Preferences (AppDelegatePreferences.cpp).
    void openPreferences();
    void save1pClicked();
    void close1pClicked();

    // The introduction tour (AppDelegateTour.cpp).
    void openIntroduction();
    void forward7Clicked();
    void back7Clicked();
    void dontshow7Clicked(bool on);

private:
    // Start-up steps.
    void screenOptions();
    void populateDB0();
    void placeMainWindow(const WindowPlacement& placement);
    void makeNSControls();
    void registerWindowObservers();
    void buildTitleBar();
    void setReadingTabOrder();
    void showDocumentSize();

    // Planets.
    void buildPlanetPanel();
    PlanetPanel& planetPanel();
    void afterCellEdit(CellOutcome outcome);
    // The status line under the table, for three seconds: the refusal of a typed value
    // unless another line is given.
    void showStatus(const QString& line = {});
    // Delete, Show All and Export as the system and the selection allow.
    void refreshPanelCommands();
    void closeCreationSheet();
    void showHistoryStep(const EditStep* step, bool undone);
    void refreshHistoryItems();
    // After a command from a button or a sheet the keyboard goes back to the planets, never
    // into a field that would take the next Return or Undo.
    void focusTable();

    // Documents.
    void connectDocumentActions();
    void updateTitle();
    void askToClearSystem();
    void removeAllPlanets();
    void replacePlanets(SceneNodeBatch oldNodes, std::vector<PlanetRecord> records);
    void writePackage(const QString& path, bool saveAs, std::function<void()> then);
    // The system on screen as a save writes it.
    ProjectDocument currentDocument();
    void openProject2(const QString& path);
    void openProject3(const QString& path, OpenedProject& project, SceneNodeBatch planetNodes);
    void showFailure(const QString& message, const std::string& reason);
    void askToSaveChanges(std::function<void()> then);
    bool mayClose();

    // Planet rows.
    void connectRowActions();
    void addPlanetRows(ReadRows rows);

    // Export.
    // A panel for a path, with the menus off while it is up; `chosen` runs unless the person
    // cancelled.
    using PathPanel = void (*)(QWidget& window, const QString& folder, const PanelTexts& texts,
                               std::function<void(const QString&)> chosen);
    void askForPath(const QString& folder, PathPanel panel, const PanelTexts& texts,
                    std::function<void(const QString&)> chosen);
    void FileExport2(bool withBackground);
    void exportPicture(const QString& path, ExportFormat format, bool withBackground,
                       float compression);
    // Export Animation (AppDelegateAnimation.cpp). The scene as a copy of its own, sized as
    // the document, for a worker thread to draw.
    std::shared_ptr<SceneView> sceneForExport();
    void chooseAnimationFile(const AnimationChoices& choices);
    void exportAnimation(const QString& path, const AnimationChoices& choices);

    // Camera and light.
    void buildPopovers();
    void showCameraSettings();
    void showLightSettings();
    void cameraFieldEdited(const QLineEdit& edited);
    void lightFieldEdited(const QLineEdit& edited);
    void applyCameraSwitches();
    void applyCamera(int mergeKey);
    int editSessionFor(const QLineEdit& field);
    // An opened package's camera and light in the popovers' fields, the failing ones red.
    void showOpenedCameraAndLight(const OpenedProject& project);

    // Preferences.
    accessoryView1p& preferencesView();
    void systempopSelected(FolderChoice& folder, const char* titleKey);
    void endPreferences();

    // The tour.
    introductionWindow& tourWindow();
    void showTourPage(int page, const QColor& badgeColour);
    void turnTourPage(const std::optional<TourTurn>& turn);

    // Menus.
    void connectMenuActions();
    void followSelectionInFindMenu();
    void askToOpenPage(const QString& question, const QUrl& page);
    void showAbout();

    // Chrome and frames (AppDelegateWindow.cpp).
    void windowWillResize();
    void windowDidEndLiveResize();
    void windowDidReize();
    void windowWillEnterFullscreen();
    void windowDidEnterFullscreen();
    void windowDidExitFullscreen();
    void windowWillClose();
    void sizeFieldReturn(QLineEdit& field);
    void refreshViews();
    // The document's size and background as the system holds them: in the fields, the
    // backdrop and the window around the picture.
    void showDocumentSettings();
    void showDocumentFields();
    void fitDocument();

    void storeFrame(const QRect& frame, char windowNumber);

    // Secondary windows (AppDelegateSecondary.cpp): each stores its frames in its own row of
    // table Windows.
    void keepFrame(FramedWindow& window, const ScreenRect& storedFrame, char windowNumber);

    QString appName_;
    AppState state_;
    Settings settings_;
    mainWindow* mainWindow_;
    MenuItems menus_;
    TitleBar* titleBar_ = nullptr;
    std::unique_ptr<SystemEditor> editor_;
    CellHandlers cellHandlers_;
    PlanetTableModel* planetModel_ = nullptr;
    PlanetTable* tableView1_ = nullptr;
    bool selectedRowEdited_ = false; // until another row is chosen
    QPointer<accessoryView3> accessoryView3_;
    QPointer<PlanetAddSheet> planetAddSheet_;
    accessoryView1p* accessoryView1p_ = nullptr;
    QPointer<ContentSheet> preferencesSheet_;
    introductionWindow* introductionWindow_ = nullptr;
    CameraPopover* popOver5_ = nullptr;
    LightPopover* popOver4_ = nullptr;
    const QLineEdit* lastEditedField_ = nullptr;
    std::unique_ptr<DocumentState> document_;
    PixelSize shownDocument_; // the picture's size in pixels, as the document area shows it
    bool closingConfirmed_ = false;
    std::unique_ptr<QPrinter> printer_; // the print settings, kept between jobs
    int editSession_ = 0;
    gradationWindow* gradationWindow_ = nullptr;
    searchWindow* searchWindow_ = nullptr;
};

} // namespace orrery::window
