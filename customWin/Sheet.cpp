#include "customWin/Sheet.h"

#include "resources/Artwork.h"

#include <QMessageBox>
#include <QPushButton>

namespace orrery::window {

void makeSheet(QDialog& sheet) {
    sheet.setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    sheet.setWindowModality(Qt::WindowModal);
    if (auto* box = qobject_cast<QMessageBox*>(&sheet))
        box->setIconPixmap(artwork::applicationIcon().pixmap(64, 64));
    // A hairline rim and a slightly lighter face set the frameless sheet off the window.
    sheet.setStyleSheet(QStringLiteral("QDialog { background: #262d47;"
                                       " border: 1px solid #4d587e; }"));
}

void placeAsSheet(QDialog& sheet, const QWidget& window) {
    const QRect frame = window.frameGeometry();
    sheet.adjustSize();
    sheet.move(frame.left() + (frame.width() - sheet.width()) / 2, frame.top() + kSheetDrop);
}

void askOnSheet(QWidget& window, const QString& message, const QString& informative,
                const QString& first, const QString& second, std::function<void(int)> answered) {
    auto* box = new QMessageBox(QMessageBox::Question, QString(), message, QMessageBox::NoButton,
                                &window);
    box->setObjectName(QStringLiteral("questionSheet"));
    makeSheet(*box);
    box->setInformativeText(informative);
    QPushButton* firstButton = box->addButton(first, QMessageBox::AcceptRole);
    QPushButton* secondButton = box->addButton(second, QMessageBox::RejectRole);
    firstButton->setObjectName(QStringLiteral("sheetButton1000"));
    secondButton->setObjectName(QStringLiteral("sheetButton1001"));
    box->setDefaultButton(firstButton);
    box->setEscapeButton(secondButton);
    box->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(box, &QMessageBox::finished, box,
                     [box, firstButton, answered = std::move(answered)] {
                         answered(box->clickedButton() == firstButton ? kFirstButton
                                                                      : kSecondButton);
                     });
    box->open();
    placeAsSheet(*box, window);
}

} // namespace orrery::window
