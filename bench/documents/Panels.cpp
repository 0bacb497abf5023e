#include "bench/documents/Panels.h"

#include "bench/table/Waiting.h"

#include <QFileDialog>
#include <QLineEdit>

namespace orrery::bench {
namespace {

constexpr int kSheetTimeoutMs = 10000;

QWidget* visibleSheet(QWidget& window, const char* name) {
    for (QWidget* sheet : window.findChildren<QWidget*>(QLatin1String(name)))
        if (sheet->isWindow() && sheet->isVisible())
            return sheet;
    return nullptr;
}

} // namespace

QWidget* waitForSheet(QWidget& window, const char* name) {
    QWidget* sheet = nullptr;
    waitUntil([&] { return (sheet = visibleSheet(window, name)) != nullptr; }, kSheetTimeoutMs);
    return sheet;
}

QFileDialog* waitForSavePanel(QWidget& window) {
    return qobject_cast<QFileDialog*>(waitForSheet(window, "savePanel"));
}

bool alertShows(QWidget& window) {
    return visibleSheet(window, "questionSheet") != nullptr;
}

bool typeFileName(QFileDialog& panel, const QString& path) {
    auto* name = panel.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (name == nullptr)
        return false;
    name->setText(path);
    return true;
}

void pressSave(QFileDialog& panel) {
    static_cast<QDialog&>(panel).accept();
}

} // namespace orrery::bench
