#include "customWin/PackageDialogs.h"

#include "core/app/SaveTarget.h"
#include "core/package/SystemSource.h"
#include "customWin/Sheet.h"
#include "customWin/Strings.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>

namespace orrery::window {
namespace {

constexpr const char* kPackageSuffix = "kvx";

bool isPackage(const QString& path) {
    const QFileInfo info(path);
    return info.isDir() &&
           info.suffix().compare(QLatin1String(kPackageSuffix), Qt::CaseInsensitive) == 0;
}

// A file panel that treats a package as a document: entering one (a double click) chooses
// it, and in a save panel the typed name is always a file name, given its extension and
// kept out of any package, whatever dots it holds and whatever folder it names.
class DocumentPanel : public QFileDialog {
public:
    DocumentPanel(QWidget& window, const QString& folder, const PanelTexts& texts, AcceptMode mode,
                  QString extension)
        : QFileDialog(&window, texts.title, folder), extension_(std::move(extension)) {
        setDefaultSuffix(extension_);
        setObjectName(mode == AcceptOpen ? QStringLiteral("openPanel")
                                         : QStringLiteral("savePanel"));
        // Our own panel, so that packages can be chosen like files and the accessory fits in.
        setOption(DontUseNativeDialog);
        // Replacing is asked once the final name is known (see confirmReplacing).
        setOption(DontConfirmOverwrite);
        setAcceptMode(mode);
        setAttribute(Qt::WA_DeleteOnClose);
        if (!texts.message.isEmpty()) {
            auto* message = new QLabel(texts.message, this);
            message->setObjectName(QStringLiteral("panelMessage"));
            addRow(message);
        }
        // A package is never walked into; where packages are what the panel chooses,
        // entering one chooses it.
        connect(this, &QFileDialog::directoryEntered, this, [this](const QString& path) {
            if (!isPackage(path))
                return;
            setDirectory(QFileInfo(path).absolutePath());
            if (choosesPackages())
                choose(path);
        });
    }

    const QString& choice() const { return choice_; }
    // A second extension a save keeps when the typed name ends in it.
    void allowExtension(QString extension) { otherExtension_ = std::move(extension); }
    // Open and save panels of packages, rather than of pictures or folders.
    bool choosesPackages() const {
        return acceptMode() == AcceptSave ? extension_ == QLatin1String(kPackageSuffix)
                                          : !testOption(ShowDirsOnly);
    }

    // The panel lays itself out on a grid: an extra widget takes a row of its own at the foot.
    void addRow(QWidget* widget) {
        auto* grid = qobject_cast<QGridLayout*>(layout());
        widget->setParent(this);
        if (grid != nullptr)
            grid->addWidget(widget, grid->rowCount(), 0, 1, grid->columnCount());
    }

    void accept() override {
        const QString typed = selectedFiles().value(0);
        if (acceptMode() == AcceptSave && !typed.isEmpty()) {
            const bool other =
                !otherExtension_.isEmpty() &&
                QFileInfo(typed).suffix().compare(otherExtension_, Qt::CaseInsensitive) == 0;
            const QString extension = other ? otherExtension_ : extension_;
            const auto target =
                saveTarget(typed.toStdString(), extension.toStdString(), kPackageSuffix);
            choose(QString::fromStdString(target.string()));
        } else if (choosesPackages() && isPackage(typed)) {
            choose(typed);
        } else if (choosesPackages() && QFileInfo(typed).isDir()) {
            setDirectory(typed); // a plain folder is opened to look into, not as a system
        } else {
            choice_ = typed;
            QFileDialog::accept();
        }
    }

private:
    void choose(const QString& path) {
        choice_ = path;
        // Accepting through the file dialog would walk into the folder again.
        QDialog::done(Accepted);
    }

    QString extension_;
    QString otherExtension_;
    QString choice_;
};

// A chosen file or package that exists is replaced only once the person said so.
void confirmReplacing(QWidget& window, const QString& path,
                      std::function<void(const QString&)> chosen) {
    if (path.isEmpty() || !QFileInfo::exists(path)) {
        chosen(path);
        return;
    }
    askOnSheet(window, textWith("replaceFileMsg", QFileInfo(path).fileName()),
               textWith("replaceFileInformative", QFileInfo(path).absolutePath()),
               {text("replaceFileReplace"), text("replaceFileCancel")},
               [path, chosen = std::move(chosen)](int answer) {
                   chosen(answer == kFirstButton ? path : QString());
               });
}

void finishWith(DocumentPanel* panel, std::function<void(const QString&)> chosen) {
    QObject::connect(panel, &QFileDialog::finished, panel,
                     [panel, chosen = std::move(chosen)](int result) {
                         chosen(result == QDialog::Accepted ? panel->choice() : QString());
                     });
    panel->open();
    placeAsSheet(*panel, *panel->parentWidget());
}

void finishSaving(DocumentPanel* panel, QWidget& window,
                  std::function<void(const QString&)> chosen) {
    finishWith(panel, [&window, chosen = std::move(chosen)](const QString& path) {
        confirmReplacing(window, path, chosen);
    });
}

QString packageFilter() {
    return QStringLiteral("*.%1").arg(QLatin1String(kPackageSuffix));
}

// Packages, and the pictures that carry the system they show.
QString openFilter() {
    QString filter = packageFilter();
    for (std::string_view extension : kSystemPictureExtensions)
        filter += QStringLiteral(" *.") + QString::fromUtf8(extension.data(), extension.size());
    return filter;
}

} // namespace

void openPackagePanel(QWidget& window, const QString& folder, const PanelTexts& texts,
                      std::function<void(const QString&)> chosen) {
    auto* panel = new DocumentPanel(window, folder, texts, QFileDialog::AcceptOpen, {});
    // Pictures are files; packages are folders, chosen as the panel enters them.
    panel->setFileMode(QFileDialog::ExistingFile);
    panel->setNameFilter(openFilter());
    finishWith(panel, std::move(chosen));
}

void savePackagePanel(QWidget& window, const QString& folder, const PanelTexts& texts,
                      std::function<void(const QString&)> chosen) {
    auto* panel = new DocumentPanel(window, folder, texts, QFileDialog::AcceptSave,
                                    QLatin1String(kPackageSuffix));
    panel->setNameFilter(packageFilter());
    panel->selectFile(texts.suggestedName + QLatin1Char('.') + QLatin1String(kPackageSuffix));
    finishSaving(panel, window, std::move(chosen));
}

void savePicturePanel(QWidget& window, const QString& folder, const PanelTexts& texts,
                      const QString& fileType, QWidget* accessory,
                      std::function<void(const QString&)> chosen) {
    auto* panel = new DocumentPanel(window, folder, texts, QFileDialog::AcceptSave, fileType);
    panel->setNameFilter(QStringLiteral("*.%1").arg(fileType));
    panel->selectFile(texts.suggestedName + QLatin1Char('.') + fileType);
    if (accessory != nullptr)
        panel->addRow(accessory);
    finishSaving(panel, window, std::move(chosen));
}

void savePlanetRowsPanel(QWidget& window, const QString& folder, const PanelTexts& texts,
                         std::function<void(const QString&)> chosen) {
    auto* panel =
        new DocumentPanel(window, folder, texts, QFileDialog::AcceptSave, QStringLiteral("tsv"));
    panel->allowExtension(QStringLiteral("csv"));
    panel->setNameFilters({QStringLiteral("*.tsv"), QStringLiteral("*.csv")});
    panel->selectFile(texts.suggestedName + QStringLiteral(".tsv"));
    finishSaving(panel, window, std::move(chosen));
}

void openPlanetRowsPanel(QWidget& window, const QString& folder, const PanelTexts& texts,
                         std::function<void(const QString&)> chosen) {
    auto* panel = new DocumentPanel(window, folder, texts, QFileDialog::AcceptOpen, {});
    panel->setObjectName(QStringLiteral("rowsPanel"));
    panel->setFileMode(QFileDialog::ExistingFile);
    panel->setNameFilter(QStringLiteral("*.tsv *.csv"));
    finishWith(panel, std::move(chosen));
}

void chooseFolderPanel(QWidget& window, const QString& folder, const QString& title,
                       std::function<void(const QString&)> chosen) {
    auto* panel =
        new DocumentPanel(window, folder, PanelTexts{title, {}, {}}, QFileDialog::AcceptOpen, {});
    panel->setObjectName(QStringLiteral("folderPanel"));
    panel->setFileMode(QFileDialog::Directory);
    panel->setOption(QFileDialog::ShowDirsOnly);
    finishWith(panel, std::move(chosen));
}

} // namespace orrery::window
