// Printing: a plain-text page in Courier 12 on a 500 x 648 point page with a top margin of
// 3 points. The text is empty, so a job prints one blank page. Where no printer is
// installed the print dialog still offers printing to a PDF file.
#include "customWin/AppDelegate.h"
#include "customWin/Sheet.h"
#include "customWin/Strings.h"
#include "customWin/mainWindow.h"

#include <QAction>
#include <QMessageBox>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QTextDocument>

namespace orrery::window {

QPrinter& AppDelegate::printer() {
    if (!printer_) {
        printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
        printer_->setPageSize(QPageSize(QSizeF(500, 648), QPageSize::Point));
        printer_->setPageMargins(QMarginsF(0, 3, 0, 0), QPageLayout::Point);
    }
    return *printer_;
}

namespace {

void printPlainPage(QPrinter& printer) {
    QTextDocument page;
    page.setDefaultFont(QFont(QStringLiteral("Courier"), 12));
    page.setPlainText(QString());
    page.print(&printer);
}

} // namespace

void AppDelegate::printPlain() {
    if (!printer().isValid()) {
        auto* alert = new QMessageBox(QMessageBox::Warning, QString(),
                                      textWith("printErrorNSPrintOperation", appName_),
                                      QMessageBox::NoButton, mainWindow_);
        alert->addButton(text("alertOK"), QMessageBox::AcceptRole);
        alert->setAttribute(Qt::WA_DeleteOnClose);
        alert->open();
        return;
    }
    auto* dialog = new QPrintDialog(&printer(), mainWindow_);
    dialog->setObjectName(QStringLiteral("printDialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, qOverload<>(&QDialog::accepted), this, [this] { printPlainPage(printer()); });
    dialog->open();
    placeAsSheet(*dialog, *mainWindow_);
}

void AppDelegate::pageSetup() {
    auto* dialog = new QPageSetupDialog(&printer(), mainWindow_);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
    placeAsSheet(*dialog, *mainWindow_);
}

} // namespace orrery::window
