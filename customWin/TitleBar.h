#pragma once

#include <QWidget>

namespace orrery::window {

class ImageButton;
class TitleLabel;

// The window's own title bar across the top of the main window: the title, which moves the
// window and zooms it on a double click, the close, minimise and zoom buttons at the left,
// which light up together while the pointer is over any of them, and the full-screen
// button at the right. The bar itself draws nothing: the window's background shows through.
class TitleBar : public QWidget {
    Q_OBJECT
public:
    explicit TitleBar(QWidget* parent);

    static constexpr int kHeight = 28;

    void setTitle(const QString& title);
    void setFullScreenOffered(bool offered);
    // Across the top of the window, over whatever else lies there.
    void spanWidth(int width);

signals:
    void closeClicked();
    void minimizeClicked();
    void zoomClicked();
    void fullScreenClicked();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showRollover(bool lit);

    TitleLabel* title_;
    ImageButton* close_;
    ImageButton* minimize_;
    ImageButton* zoom_;
    ImageButton* full_;
};

} // namespace orrery::window
