#pragma once

#include <QAbstractButton>
#include <QIcon>
#include <QString>

namespace orrery::window {

// A borderless button that is only its picture, drawn from a vector image of the title-bar
// resources so that it stays sharp at every scale. It tells when the pointer enters and
// leaves it, for rollover pictures that light several buttons at once.
class ImageButton : public QAbstractButton {
    Q_OBJECT
public:
    ImageButton(const QString& imageName, QWidget* parent);

    void setImage(const QString& imageName);
    const QString& imageName() const { return imageName_; }
    QSize sizeHint() const override { return {16, 16}; }

signals:
    void pointerEntered();
    void pointerLeft();

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    QString imageName_;
    QIcon image_;
};

} // namespace orrery::window
