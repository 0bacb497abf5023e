#include "customWin/FieldValidity.h"

#include <QLineEdit>

namespace orrery::window {

void markValid(QLineEdit& field, bool valid) {
    QPalette colours = field.palette();
    colours.setColor(QPalette::Text, valid ? Qt::black : Qt::red);
    field.setPalette(colours);
}

} // namespace orrery::window
