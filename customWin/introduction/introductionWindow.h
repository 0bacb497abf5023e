#pragma once

#include "core/app/TourPages.h"

#include <QImage>
#include <QPixmap>
#include <QWidget>

class QCheckBox;
class QLabel;
class QPushButton;

namespace orrery::window {

// The introduction tour's window: the page's picture, its text, the number badge between
// the back and forward buttons, and the box that switches the tour off for later starts.
// It shows what it is given; the controller turns the pages.
class introductionWindow : public QWidget {
    Q_OBJECT
public:
    explicit introductionWindow(QWidget* parent);

    // The badge's number is also what a screen reader says of it.
    void showPage(const QPixmap& picture, const QString& text, const QImage& badge,
                  const QString& number);
    void setButtons(TourButtons buttons);

    QLabel& introView7() { return *picture_; }
    QLabel& introductionLabel7() { return *text_; }
    QLabel& countView7() { return *badge_; }
    QPushButton& backButton7() { return *back_; }
    QPushButton& forwardButton7() { return *forward_; }
    QCheckBox& noshowButton7() { return *noShow_; }

signals:
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QLabel* picture_;
    QLabel* text_;
    QLabel* badge_;
    QPushButton* back_;
    QPushButton* forward_;
    QCheckBox* noShow_;
};

} // namespace orrery::window
