#include "customWin/ProgressSheet.h"

#include "customWin/Sheet.h"

#include <QLabel>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>

namespace orrery::window {
namespace {

constexpr int kSpokes = 12;
constexpr int kStepMs = 80;

} // namespace

Spinner::Spinner(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("progressSpinner"));
    timer_.setInterval(kStepMs);
    connect(&timer_, &QTimer::timeout, this, [this] {
        ++steps_;
        update();
    });
}

void Spinner::start() {
    timer_.start();
}

void Spinner::stop() {
    timer_.stop();
}

void Spinner::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(width() / 2.0, height() / 2.0);
    const double radius = std::min(width(), height()) / 2.0;
    for (int spoke = 0; spoke < kSpokes; ++spoke) {
        // The spoke at the head is brightest; the others fade behind it.
        const int age = (spoke - steps_ % kSpokes + kSpokes) % kSpokes;
        QColor colour(220, 228, 255);
        colour.setAlphaF(static_cast<float>(1.0 - age / static_cast<double>(kSpokes)));
        painter.setPen(QPen(colour, radius / 4.5, Qt::SolidLine, Qt::RoundCap));
        painter.save();
        painter.rotate(-360.0 * spoke / kSpokes);
        painter.drawLine(QPointF(0, -radius * 0.5), QPointF(0, -radius * 0.85));
        painter.restore();
    }
}

ProgressSheet::ProgressSheet(const QString& label, QWidget& window)
    : QDialog(&window), spinner_(new Spinner(this)), label_(new QLabel(label, this)),
      bar_(new QProgressBar(this)) {
    setObjectName(QStringLiteral("progressSheet"));
    setWindowTitle(label);
    makeSheet(*this);
    setFixedSize(400, 114);
    // The spinner near the top, 74 above the bottom edge, the label centred under it.
    spinner_->setGeometry(190, 114 - 74 - 20, 20, 20);
    label_->setObjectName(QStringLiteral("progressLabel"));
    label_->setGeometry(80, 50, 240, 46);
    label_->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    label_->setWordWrap(true);
    bar_->setObjectName(QStringLiteral("progressBar"));
    bar_->setAccessibleName(label);
    bar_->setGeometry(100, 88, 200, 12);
    bar_->setTextVisible(false);
    bar_->hide();
}

void ProgressSheet::begin() {
    open();
    placeAsSheet(*this, *parentWidget());
    spinner_->start();
}

void ProgressSheet::setProgress(int done, int total) {
    if (total <= 1)
        return;
    bar_->setRange(0, total);
    bar_->setValue(done);
    bar_->show();
}

void ProgressSheet::offerCancel(const QString& buttonText, std::function<void()> cancel) {
    setFixedSize(400, 170);
    detail_ = new QLabel(this);
    detail_->setObjectName(QStringLiteral("progressDetail"));
    detail_->setGeometry(80, 104, 240, 20);
    detail_->setAlignment(Qt::AlignHCenter);
    auto* button = new QPushButton(buttonText, this);
    button->setObjectName(QStringLiteral("progressCancel"));
    button->setGeometry(150, 130, 100, 28);
    connect(button, &QPushButton::clicked, this, [button, cancel = std::move(cancel)] {
        button->setEnabled(false);
        cancel();
    });
    detail_->show();
    button->show();
}

void ProgressSheet::setDetail(const QString& detail) {
    if (detail_ != nullptr)
        detail_->setText(detail);
}

void ProgressSheet::end() {
    spinner_->stop();
    accept();
    deleteLater();
}

} // namespace orrery::window
