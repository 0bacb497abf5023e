#pragma once

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace orrery::window {

// One folder of the Preferences sheet: a line that says what the folder is for, a menu
// whose first item is the folder (its icon and name) and whose second chooses another,
// the folder's whole path, and a button that goes back to the documents folder.
class FolderChoice : public QWidget {
    Q_OBJECT
public:
    // `number` names the controls: openField1p, systempopup1p, defaultButton1p for 1, and
    // destField2p, systempopup2p, defaultButton2p for 2.
    FolderChoice(int number, const QString& label, const QString& defaultTitle,
                 QWidget* parent = nullptr);

    QString folder() const;
    // Shows the folder in the field and makes it the menu's first item, selected.
    void setFolder(const QString& path);
    // The menu back at its first item, after choosing another folder was given up.
    void selectShownFolder();

    QLineEdit& field() { return *field_; }
    QComboBox& menu() { return *menu_; }
    QPushButton& defaultButton() { return *default_; }

signals:
    void otherFolderWanted();
    void defaultWanted();

private:
    QLineEdit* field_;
    QComboBox* menu_;
    QPushButton* default_;
};

} // namespace orrery::window
