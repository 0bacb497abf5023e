#include "customWin/AppDelegate.h"

#include "core/app/AppPaths.h"
#include "customWin/PackageDialogs.h"
#include "customWin/Sheet.h"
#include "customWin/Strings.h"
#include "customWin/mainWindow.h"
#include "customWin/preferences/FolderChoice.h"
#include "customWin/preferences/accessoryView1p.h"

#include <QPushButton>
#include <QTabWidget>

#include <utility>

namespace orrery::window {
namespace {

QString documentsPath() {
    return QString::fromStdString(documentsFolder().string());
}

} // namespace

// The contents are made when the sheet first opens, so that start-up does not wait for them.
accessoryView1p& AppDelegate::preferencesView() {
    if (accessoryView1p_ != nullptr)
        return *accessoryView1p_;
    accessoryView1p_ = new accessoryView1p();
    accessoryView1p& view = *accessoryView1p_;
    const auto connectFolder = [this](FolderChoice& folder, const char* titleKey) {
        connect(&folder, &FolderChoice::otherFolderWanted, this,
                [this, &folder, titleKey] { systempopSelected(folder, titleKey); });
        connect(&folder, &FolderChoice::defaultWanted, this,
                [&folder] { folder.setFolder(documentsPath()); });
    };
    connectFolder(view.openFolder(), "controlPreferencesOpenOther");
    connectFolder(view.exportFolder(), "controlPreferencesExportOther");
    connect(&view.saveButton1p(), &QPushButton::clicked, this, &AppDelegate::save1pClicked);
    connect(&view.closeButton1p(), &QPushButton::clicked, this, &AppDelegate::close1pClicked);
    return view;
}

void AppDelegate::openPreferences() {
    if (state_.isPreferencesOpen)
        return;
    saveMenuStatus();
    settings_.reloadPreferencesAndGeneral();
    accessoryView1p& view = preferencesView();
    view.showValues(shownPreferences(settings_, documentsFolder()));
    preferencesSheet_ =
        new ContentSheet(view, *mainWindow_, {accessoryView1p::kWidth, accessoryView1p::kHeight},
                         text("sheetTitlePreferences"), QStringLiteral("preferencesSheet"),
                         QStringLiteral("preferencesView"));
    // Escape closes the sheet as Close does.
    connect(preferencesSheet_, &QDialog::rejected, this, &AppDelegate::close1pClicked);
    preferencesSheet_->open();
    placeAsSheet(*preferencesSheet_, *mainWindow_);
    state_.isPreferencesOpen = true;
}

// Another folder: the panel starts in the folder shown if it is still there, else in the
// documents folder; giving up leaves the folder as it was.
void AppDelegate::systempopSelected(FolderChoice& folder, const char* titleKey) {
    const QString start = QString::fromStdString(
        folderPanelStart(folder.folder().toStdString(), documentsFolder()).string());
    QWidget* sheet =
        preferencesSheet_ != nullptr ? static_cast<QWidget*>(preferencesSheet_) : mainWindow_;
    chooseFolderPanel(*sheet, start, text(titleKey), [&folder](const QString& chosen) {
        if (chosen.isEmpty())
            folder.selectShownFolder();
        else
            folder.setFolder(chosen);
    });
}

void AppDelegate::save1pClicked() {
    const PreferencesValues values = preferencesView().values();
    savePreferences(settings_, values);
    endPreferences();
}

void AppDelegate::close1pClicked() {
    endPreferences();
}

void AppDelegate::endPreferences() {
    if (preferencesSheet_ == nullptr)
        return;
    std::exchange(preferencesSheet_, nullptr)->finish();
    state_.isPreferencesOpen = false;
    loadMenuStatus();
}

} // namespace orrery::window
