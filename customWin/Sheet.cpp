#include "customWin/Sheet.h"

#include <QMessageBox>
#include <QPushButton>

namespace orrery::window {

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
