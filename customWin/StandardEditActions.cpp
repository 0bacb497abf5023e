#include "customWin/StandardEditActions.h"

#include "customWin/MenuBar.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QLineEdit>

#include <functional>

namespace orrery::window {
QLineEdit* focusedField() {
    return qobject_cast<QLineEdit*>(QApplication::focusWidget());
}

namespace {

void onFocusedField(QAction* item, std::function<void(QLineEdit&)> command) {
    QObject::connect(item, &QAction::triggered, item, [command = std::move(command)] {
        if (QLineEdit* field = focusedField(); field != nullptr && !field->isReadOnly())
            command(*field);
    });
}

// Replaces the field's selection by the transformed text and keeps it selected.
void transformSelection(QLineEdit& field, const std::function<QString(const QString&)>& change) {
    if (!field.hasSelectedText())
        return;
    const int start = field.selectionStart();
    const QString changed = change(field.selectedText());
    field.insert(changed);
    field.setSelection(start, static_cast<int>(changed.size()));
}

QString capitalised(const QString& text) {
    QString result = text.toLower();
    bool wordStart = true;
    for (QChar& c : result) {
        if (wordStart && c.isLetter())
            c = c.toUpper();
        wordStart = c.isSpace();
    }
    return result;
}

} // namespace

void connectStandardEditActions(const MenuItems& m) {
    onFocusedField(m.editCut, [](QLineEdit& field) { field.cut(); });
    onFocusedField(m.editPaste, [](QLineEdit& field) { field.paste(); });
    // A text field holds plain text only, so pasting it matches the field's style.
    onFocusedField(m.editPastematch, [](QLineEdit& field) { field.paste(); });
    onFocusedField(m.editDelete, [](QLineEdit& field) { field.del(); });
    onFocusedField(m.editTransupper, [](QLineEdit& field) {
        transformSelection(field, [](const QString& text) { return text.toUpper(); });
    });
    onFocusedField(m.editTranslower, [](QLineEdit& field) {
        transformSelection(field, [](const QString& text) { return text.toLower(); });
    });
    onFocusedField(m.editTranscapital,
                   [](QLineEdit& field) { transformSelection(field, capitalised); });
    QObject::connect(m.editCopy, &QAction::triggered, m.editCopy, [] {
        if (QLineEdit* field = focusedField())
            field->copy();
    });
    QObject::connect(m.editSelectall, &QAction::triggered, m.editSelectall, [] {
        if (QLineEdit* field = focusedField())
            field->selectAll();
        else if (auto* view = qobject_cast<QAbstractItemView*>(QApplication::focusWidget()))
            view->selectAll();
    });
}

QString selectedTextOfFocus() {
    const QLineEdit* field = focusedField();
    return field != nullptr ? field->selectedText() : QString();
}

} // namespace orrery::window
