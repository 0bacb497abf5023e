#pragma once

#include <QTimer>
#include <QWidget>

namespace orrery::window {

class mainView;

// The main window. It has no frame from the desktop: the program draws its own title bar,
// so the window moves by its title and resizes by its edges and corners itself. It tells
// its controller of every change that the window's rules react to.
class mainWindow : public QWidget {
    Q_OBJECT
public:
    mainWindow();

    mainView& content() { return *content_; }

signals:
    void resized();
    // The pointer let go of the window's edge: a resize by hand has ended.
    void liveResizeEnded();
    void closing();
    void enteredFullScreen();
    void leftFullScreen();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Qt::Edges edgesAt(const QPoint& windowPoint) const;
    void showEdgeCursor(Qt::Edges edges);

    mainView* content_;
    QTimer liveResize_;
    Qt::Edges cursorEdges_;
    bool wasFullScreen_ = false;
};

} // namespace orrery::window
