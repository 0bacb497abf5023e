#include "customWin/AppStyle.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

namespace orrery::window {

void applyAppStyle(QApplication& application) {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const QColor window(30, 35, 54);
    const QColor base(20, 24, 40);
    const QColor text(228, 232, 242);
    const QColor accent(74, 124, 230);
    QPalette colours;
    colours.setColor(QPalette::Window, window);
    colours.setColor(QPalette::WindowText, text);
    colours.setColor(QPalette::Base, base);
    colours.setColor(QPalette::AlternateBase, QColor(26, 31, 50));
    colours.setColor(QPalette::ToolTipBase, QColor(44, 50, 74));
    colours.setColor(QPalette::ToolTipText, text);
    colours.setColor(QPalette::PlaceholderText, QColor(140, 148, 170));
    colours.setColor(QPalette::Text, text);
    colours.setColor(QPalette::Button, QColor(44, 51, 78));
    colours.setColor(QPalette::ButtonText, text);
    colours.setColor(QPalette::BrightText, Qt::white);
    colours.setColor(QPalette::Highlight, accent);
    colours.setColor(QPalette::HighlightedText, Qt::white);
    colours.setColor(QPalette::Link, QColor(122, 162, 255));
    colours.setColor(QPalette::Light, QColor(70, 78, 110));
    colours.setColor(QPalette::Midlight, QColor(56, 63, 92));
    colours.setColor(QPalette::Mid, QColor(36, 41, 62));
    colours.setColor(QPalette::Dark, QColor(16, 19, 32));
    colours.setColor(QPalette::Shadow, QColor(0, 0, 0));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        colours.setColor(QPalette::Disabled, role, QColor(120, 127, 150));
    application.setPalette(colours);
    application.setStyleSheet(QStringLiteral(
        "QMenuBar { background: transparent; color: #dfe4f2; }"
        "QMenuBar::item { padding: 4px 10px; border-radius: 5px; background: transparent; }"
        "QMenuBar::item:selected { background: rgba(255, 255, 255, 30); }"
        "QMenuBar::item:disabled { color: #6e7590; }"
        "QMenu { background: #232a42; border: 1px solid #3b4464; border-radius: 6px;"
        " padding: 5px 0; }"
        "QMenu::item { padding: 5px 28px 5px 24px; }"
        "QMenu::item:selected { background: #4a7ce6; color: white; }"
        "QMenu::item:disabled { color: #6e7590; }"
        "QMenu::separator { height: 1px; background: #3b4464; margin: 4px 10px; }"
        "QToolTip { border: 1px solid #4a5478; border-radius: 4px; padding: 3px 6px; }"));
}

} // namespace orrery::window
