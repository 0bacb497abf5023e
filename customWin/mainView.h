#pragma once

#include <QWidget>

class QLineEdit;
class QMenuBar;

namespace orrery::window {

class BackgroundView10;
class footView;
class headerView;
class screenView;
class sceneView;

// The document area: the exported picture's size plus a 1-pixel frame on every side,
// holding the backdrop and, exactly over it, the scene. A picture the window cannot hold
// at its size is shown scaled down within it, a smaller one centred.
class topView1 : public QWidget {
    Q_OBJECT
public:
    explicit topView1(QWidget* parent);

    screenView& backdrop() { return *screen_; }
    sceneView& scene() { return *scene_; }
    // Where in the area (inside its frame) the picture is shown, at its size or scaled.
    void showDocumentAt(const QRect& place);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void layOutDocument();

    screenView* screen_;
    sceneView* scene_;
    QRect place_; // empty: the whole area
};

// Everything inside the main window: the decorative background, the title strip (whose
// controls the controller places), the header with the menus and the document size, the
// document area and the planet panel below it. Heights are fixed, so the window is always
// 40 wider and 262 taller than the framed document area; in full screen the title strip
// folds away and the document area takes its room.
class mainView : public QWidget {
    Q_OBJECT
public:
    explicit mainView(QWidget* parent);

    static constexpr int kTitleStrip = 28;
    static constexpr int kHeaderHeight = 36;
    static constexpr int kSideMargin = 20;

    BackgroundView10& backview10() { return *background_; }
    headerView& header() { return *header_; }
    topView1& documentArea() { return *document_; }
    footView& foot() { return *foot_; }

    void setTitleStripShown(bool shown);

signals:
    // The parts have their new places after a change of size.
    void laidOut();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void layOut();

    BackgroundView10* background_;
    headerView* header_;
    topView1* document_;
    footView* foot_;
    bool titleStripShown_ = true;
};

} // namespace orrery::window
