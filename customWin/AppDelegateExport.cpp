// Export: the format question, the save panel with its compression slider, the picture
// read back from the scene and laid over the background colour when asked, and the file
// written on a worker thread behind the progress sheet.
#include "core/app/AppPaths.h"
#include "core/export/ExportChoices.h"
#include "core/export/ExportPicture.h"
#include "core/export/SceneModel.h"
#include "core/package/EmbeddedSystem.h"
#include "core/package/ProjectSettings.h"
#include "core/settings/SettingsReaders.h"
#include "customWin/AppDelegate.h"
#include "customWin/ExportAccessories.h"
#include "customWin/PackageDialogs.h"
#include "customWin/ProgressSheet.h"
#include "customWin/Sheet.h"
#include "customWin/Strings.h"
#include "customWin/mainWindow.h"
#include "customWin/sceneView.h"
#include "imageio/ImageFile.h"
#include "imageio/SurfaceLibrary.h"
#include "scene3d/GltfScene.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QSlider>
#include <QTimer>

namespace orrery::window {
namespace {

constexpr int kPanelDelayMs = 500;

} // namespace

void AppDelegate::FileExport1() {
    state_.formatSelection = exportQuestionFormatRow(settings_.preferenceArray);
    auto* accessory = new accessoryView1();
    accessory->exportPopup1().setCurrentIndex(state_.formatSelection);
    connect(&accessory->exportPopup1(), &QComboBox::currentIndexChanged, this,
            [this](int row) { state_.formatSelection = row; });
    saveMenuStatus();
    const IncludeBackgroundChoice include =
        includeBackgroundChoice(state_.currentBackground, settings_.checkboxArray);
    accessory->includeButton1().setEnabled(include.enabled);
    accessory->includeButton1().setChecked(include.on);
    askOnSheet(
        *mainWindow_, text("exportImageSelectingExportFormat"), QString(),
        {text("exportImageNext"), text("exportImageCancel")},
        [this, accessory](int answer) {
            if (answer != kFirstButton) {
                loadMenuStatus();
                return;
            }
            const bool withBackground = accessory->includeButton1().isChecked();
            QTimer::singleShot(kPanelDelayMs, this,
                               [this, withBackground] { FileExport2(withBackground); });
        },
        accessory);
}

// The save panel of the chosen format; JPEG and JPEG 2000 carry the compression slider.
void AppDelegate::FileExport2(bool withBackground) {
    const ExportFormat format = formatForRow(state_.formatSelection).value_or(ExportFormat::png);
    const ExportFormatInfo& info = formatInfo(format);
    accessoryView2* compression = nullptr;
    if (info.usesCompression) {
        compression = new accessoryView2();
        compression->compressSlider2().setValue(compressionPercent(settings_.preferenceArray));
    }
    const QString folder = exportPanelFolder();
    savePicturePanel(
        *mainWindow_, folder,
        {text("exportImageTitle"), text("exportImageSelectFilePath"),
         text("exportImageUntitleFileName")},
        QString::fromUtf8(info.fileType.data(), static_cast<qsizetype>(info.fileType.size())),
        compression, [this, format, withBackground, compression](const QString& path) {
            if (path.isEmpty()) {
                loadMenuStatus();
                return;
            }
            const int slider = compression != nullptr ? compression->compressSlider2().value()
                                                      : kDefaultCompression;
            exportPicture(path, format, withBackground, compressionFactor(slider));
        });
}

void AppDelegate::exportPicture(const QString& path, ExportFormat format, bool withBackground,
                                float compression) {
    // The sheet shows while the picture is drawn too: a large one, drawn in tiles, fills its
    // bar, and the window keeps painting between tiles. The drawing starts from the event
    // loop, once the save panel that asked for it is done with.
    auto* progress = new ProgressSheet(text("exportImageSavingNewImage"), *mainWindow_);
    progress->begin();
    QTimer::singleShot(0, this, [this, progress, path, format, withBackground, compression] {
        std::string error;
        std::optional<Image> scene = sceneview().imageFromSceneKitView(
            QSize(shownDocument_.width, shownDocument_.height), &error,
            [progress](int done, int total) {
                progress->setProgress(done, total);
                QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
            });
        if (!scene) {
            progress->end();
            loadMenuStatus();
            showFailure(text("exportFailedMsg"), error);
            return;
        }
        Image picture =
            orrery::exportPicture(std::move(*scene), state_.currentBackground, withBackground);
        // The picture carries the system it shows, so that it opens again as that system.
        std::vector<PictureText> system =
            systemTextFields(openedProject(currentDocument()), format);
        runWithProgress<std::string>(
            progress, *mainWindow_,
            [picture = std::move(picture), target = path.toStdString(), format, compression,
             system = std::move(system)] {
                return imageio::writeImageFile(picture, target, format, compression, system);
            },
            [this](std::string& failure) {
                loadMenuStatus();
                focusTable();
                if (!failure.empty())
                    showFailure(text("exportFailedMsg"), failure);
            });
    });
}

QString AppDelegate::exportPanelFolder() const {
    return QString::fromStdString(
        exportFolder(settings_.preferenceArray, documentsFolder()).string());
}

void AppDelegate::askForPath(const QString& folder, PathPanel panel, const PanelTexts& texts,
                             std::function<void(const QString&)> chosen) {
    saveMenuStatus();
    panel(*mainWindow_, folder, texts, [this, chosen = std::move(chosen)](const QString& path) {
        loadMenuStatus();
        if (!path.isEmpty())
            chosen(path);
    });
}

void AppDelegate::exportScene() {
    const PathPanel sceneFilePanel = [](QWidget& window, const QString& folder,
                                        const PanelTexts& texts,
                                        std::function<void(const QString&)> chosen) {
        savePicturePanel(window, folder, texts, QStringLiteral("glb"), nullptr, std::move(chosen));
    };
    askForPath(
        exportPanelFolder(), sceneFilePanel,
        {text("exportSceneTitle"), text("exportSceneMessage"), text("exportImageUntitleFileName")},
        [this](const QString& path) {
            SceneModel model = sceneModel(sceneview().scene(), state_.planetArray.records(),
                                          shownDocument_.height);
            model.aspectRatio = static_cast<double>(shownDocument_.width) / shownDocument_.height;
            runWithProgress<std::string>(
                *mainWindow_, text("exportSceneSaving"),
                [model = std::move(model), target = path.toStdString()] {
                    const imageio::SurfaceLibrary surfaces;
                    return scene3d::writeGltfScene(model, target, [&](const std::string& name) {
                        return surfaces.surfaceNamed(name);
                    });
                },
                [this, path](std::string& failure) {
                    focusTable();
                    if (!failure.empty())
                        showFailure(text("exportSceneFailedMsg"),
                                    path.toStdString() + ": " + failure);
                });
        });
}

} // namespace orrery::window
