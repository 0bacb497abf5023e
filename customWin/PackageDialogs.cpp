#include "customWin/PackageDialogs.h"

#include "customWin/Sheet.h"

#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>

namespace orrery::window {
namespace {

constexpr const char* kPackageSuffix = "kvx";

// The panel lays itself out on a grid: an extra widget takes a row of its own at the foot.
void addRow(QFileDialog& panel, QWidget* widget) {
    auto* grid = qobject_cast<QGridLayout*>(panel.layout());
    widget->setParent(&panel);
    if (grid != nullptr)
        grid->addWidget(widget, grid->rowCount(), 0, 1, grid->columnCount());
}

QFileDialog* makePanel(QWidget& window, const QString& folder, const PanelTexts& texts,
                       QFileDialog::AcceptMode mode) {
    auto* panel = new QFileDialog(&window, texts.title, folder);
    panel->setObjectName(mode == QFileDialog::AcceptOpen ? QStringLiteral("openPanel")
                                                         : QStringLiteral("savePanel"));
    // Our own panel, so that packages can be chosen like files and the accessory fits in.
    panel->setOption(QFileDialog::DontUseNativeDialog);
    panel->setAcceptMode(mode);
    panel->setAttribute(Qt::WA_DeleteOnClose);
    if (!texts.message.isEmpty()) {
        auto* message = new QLabel(texts.message, panel);
        message->setObjectName(QStringLiteral("panelMessage"));
        addRow(*panel, message);
    }
    return panel;
}

void finishWith(QFileDialog* panel, std::function<void(const QString&)> chosen) {
    QObject::connect(
        panel, &QFileDialog::finished, panel, [panel, chosen = std::move(chosen)](int result) {
            const QStringList files = panel->selectedFiles();
            chosen(result == QDialog::Accepted && !files.isEmpty() ? files.first() : QString());
        });
    panel->open();
    placeAsSheet(*panel, *panel->parentWidget());
}

// Entering a package chooses it.
void choosePackagesOnEntry(QFileDialog* panel) {
    QObject::connect(panel, &QFileDialog::directoryEntered, panel, [panel](const QString& path) {
        if (!path.endsWith(QLatin1Char('.') + QLatin1String(kPackageSuffix)))
            return;
        panel->setDirectory(QFileInfo(path).absolutePath());
        panel->selectFile(QFileInfo(path).fileName());
        // Accepting would walk into the folder again: the choice is made.
        static_cast<QDialog*>(panel)->done(QDialog::Accepted);
    });
}

} // namespace

void openPackagePanel(QWidget& window, const QString& folder, const PanelTexts& texts,
                      std::function<void(const QString&)> chosen) {
    QFileDialog* panel = makePanel(window, folder, texts, QFileDialog::AcceptOpen);
    panel->setFileMode(QFileDialog::Directory);
    panel->setNameFilter(QStringLiteral("*.%1").arg(QLatin1String(kPackageSuffix)));
    choosePackagesOnEntry(panel);
    finishWith(panel, std::move(chosen));
}

void savePackagePanel(QWidget& window, const QString& folder, const PanelTexts& texts,
                      std::function<void(const QString&)> chosen) {
    QFileDialog* panel = makePanel(window, folder, texts, QFileDialog::AcceptSave);
    panel->setDefaultSuffix(QLatin1String(kPackageSuffix));
    panel->setNameFilter(QStringLiteral("*.%1").arg(QLatin1String(kPackageSuffix)));
    panel->selectFile(texts.suggestedName + QLatin1Char('.') + QLatin1String(kPackageSuffix));
    choosePackagesOnEntry(panel);
    finishWith(panel, std::move(chosen));
}

void savePicturePanel(QWidget& window, const QString& folder, const PanelTexts& texts,
                      const QString& fileType, QWidget* accessory,
                      std::function<void(const QString&)> chosen) {
    QFileDialog* panel = makePanel(window, folder, texts, QFileDialog::AcceptSave);
    panel->setDefaultSuffix(fileType);
    panel->setNameFilter(QStringLiteral("*.%1").arg(fileType));
    panel->selectFile(texts.suggestedName + QLatin1Char('.') + fileType);
    if (accessory != nullptr)
        addRow(*panel, accessory);
    finishWith(panel, std::move(chosen));
}

void chooseFolderPanel(QWidget& window, const QString& folder, const QString& title,
                       std::function<void(const QString&)> chosen) {
    QFileDialog* panel =
        makePanel(window, folder, PanelTexts{title, {}, {}}, QFileDialog::AcceptOpen);
    panel->setObjectName(QStringLiteral("folderPanel"));
    panel->setFileMode(QFileDialog::Directory);
    panel->setOption(QFileDialog::ShowDirsOnly);
    finishWith(panel, std::move(chosen));
}

} // namespace orrery::window
