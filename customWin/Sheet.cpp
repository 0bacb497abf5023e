#include "customWin/Sheet.h"

#include "customWin/AppStyle.h"
#include "resources/Artwork.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace orrery::window {

void makeSheet(QDialog& sheet) {
    sheet.setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    sheet.setWindowModality(Qt::WindowModal);
    if (auto* box = qobject_cast<QMessageBox*>(&sheet))
        box->setIconPixmap(artwork::applicationIcon().pixmap(64, 64));
    // A hairline rim and a slightly lighter face set the frameless sheet off the window.
    sheet.setStyleSheet(QStringLiteral("QDialog { background: %1; border: 1px solid %2; }")
                            .arg(QLatin1String(kFloatingFace), QLatin1String(kFloatingRim)));
}

void placeAsSheet(QDialog& sheet, const QWidget& window) {
    const QRect frame = window.frameGeometry();
    sheet.adjustSize();
    sheet.move(frame.left() + (frame.width() - sheet.width()) / 2, frame.top() + kSheetDrop);
    // The keyboard goes to the sheet at once, not when the window manager gets round to it.
    sheet.activateWindow();
}

namespace {

// The box lays itself out on a grid with its buttons in the last row: the accessory takes
// that row, in the text's column, and the buttons move one row down.
void insertAboveButtons(QMessageBox& box, QWidget* accessory) {
    auto* grid = qobject_cast<QGridLayout*>(box.layout());
    auto* buttons = box.findChild<QDialogButtonBox*>();
    const int at = grid != nullptr && buttons != nullptr ? grid->indexOf(buttons) : -1;
    if (at < 0)
        return;
    int row = 0, column = 0, rows = 0, columns = 0;
    grid->getItemPosition(at, &row, &column, &rows, &columns);
    grid->removeWidget(buttons);
    accessory->setParent(&box);
    grid->addWidget(accessory, row, 1, 1, grid->columnCount() - 1);
    grid->addWidget(buttons, row + 1, column, rows, columns);
}

} // namespace

void askOnSheet(QWidget& window, const QString& message, const QString& informative,
                const QStringList& buttons, std::function<void(int)> answered, QWidget* accessory) {
    auto* box =
        new QMessageBox(QMessageBox::Question, QString(), message, QMessageBox::NoButton, &window);
    box->setObjectName(QStringLiteral("questionSheet"));
    // Screen readers announce a sheet by its title, which no one sees on a sheet.
    box->setWindowTitle(message);
    makeSheet(*box);
    box->setInformativeText(informative);
    QList<QPushButton*> pushButtons;
    for (qsizetype i = 0; i < buttons.size(); ++i) {
        const auto role = i == 0                    ? QMessageBox::AcceptRole
                          : i == buttons.size() - 1 ? QMessageBox::RejectRole
                                                    : QMessageBox::DestructiveRole;
        QPushButton* button = box->addButton(buttons[i], role);
        button->setObjectName(QStringLiteral("sheetButton%1").arg(kFirstButton + i));
        pushButtons.append(button);
    }
    box->setDefaultButton(pushButtons.first());
    box->setEscapeButton(pushButtons.last());
    if (accessory != nullptr)
        insertAboveButtons(*box, accessory);
    box->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(
        box, &QMessageBox::finished, box, [box, pushButtons, answered = std::move(answered)] {
            const auto index =
                pushButtons.indexOf(qobject_cast<QPushButton*>(box->clickedButton()));
            answered(kFirstButton + static_cast<int>(index < 0 ? pushButtons.size() - 1 : index));
        });
    box->open();
    placeAsSheet(*box, window);
}

ContentSheet::ContentSheet(QWidget& contents, QWidget& window, QSize size, const QString& title,
                           const QString& sheetName, const QString& viewName)
    : QDialog(&window), view_(new QWidget(this)), contents_(contents) {
    setObjectName(sheetName);
    setWindowTitle(title);
    view_->setObjectName(viewName);
    makeSheet(*this);
    setFixedSize(size);
    auto* layout = new QVBoxLayout(view_);
    layout->setContentsMargins(0, 0, 0, 0);
    contents.setParent(view_);
    layout->addWidget(&contents);
    contents.show();
    view_->setGeometry(QRect(QPoint(0, 0), size));
}

void ContentSheet::finish() {
    constexpr int kContentsKeptMs = 500;
    // Ended by its own buttons: hiding it is no longer a rejection to anyone.
    disconnect(this, &QDialog::rejected, nullptr, nullptr);
    hide();
    QTimer::singleShot(kContentsKeptMs, this, &ContentSheet::releaseContents);
}

// The contents may already hang in a newer sheet, opened within the half second: that sheet
// keeps them, and only this sheet's own view goes.
void ContentSheet::releaseContents() {
    if (contents_.parentWidget() == view_) {
        contents_.hide();
        contents_.setParent(nullptr);
    }
    delete view_;
    view_ = nullptr;
    deleteLater();
}

} // namespace orrery::window
