#include "customWin/searchWindow.h"

#include "customWin/Strings.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace orrery::window {

searchWindow::searchWindow(PlanetNames planets, QWidget* parent)
    : FramedWindow(parent), planets_(std::move(planets)), field_(new QLineEdit(this)),
      matches_(new QListWidget(this)), empty_(new QLabel(this)) {
    setObjectName(QStringLiteral("searchWindow"));
    setWindowTitle(text("searchWindowTitle"));
    field_->setObjectName(QStringLiteral("searchField"));
    field_->setPlaceholderText(text("searchFieldPlaceholder"));
    field_->setAccessibleName(text("searchWindowTitle"));
    field_->setClearButtonEnabled(true);
    for (QToolButton* clear : field_->findChildren<QToolButton*>())
        clear->setAccessibleName(text("searchClear"));
    matches_->setObjectName(QStringLiteral("searchMatches"));
    matches_->setAccessibleName(text("searchWindowTitle"));
    empty_->setObjectName(QStringLiteral("searchNoMatch"));
    empty_->setText(text("searchNoMatch"));
    empty_->setAlignment(Qt::AlignCenter);
    empty_->setEnabled(false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 10, 10, 10);
    layout->addWidget(field_);
    layout->addWidget(matches_, 1);
    layout->addWidget(empty_);
    connect(field_, &QLineEdit::textChanged, this, &searchWindow::refresh);
    connect(field_, &QLineEdit::returnPressed, this, [this] { chooseRow(0); });
    connect(matches_, &QListWidget::itemActivated, this,
            [this](QListWidgetItem* item) { chooseRow(matches_->row(item)); });
    connect(matches_, &QListWidget::itemClicked, this,
            [this](QListWidgetItem* item) { chooseRow(matches_->row(item)); });
    resize(320, 360);
}

void searchWindow::setSearchText(const QString& part) {
    field_->setText(part);
}

void searchWindow::refresh() {
    const QString part = field_->text().trimmed();
    matches_->clear();
    for (const auto& [tsecs, name] : planets_()) {
        if (!name.contains(part, Qt::CaseInsensitive))
            continue;
        auto* item = new QListWidgetItem(name.isEmpty() ? tsecs : name, matches_);
        item->setData(Qt::UserRole, tsecs);
    }
    empty_->setVisible(matches_->count() == 0);
}

void searchWindow::chooseNext(int step) {
    const int count = matches_->count();
    if (count == 0)
        return;
    const int current = matches_->currentRow();
    chooseRow(current < 0 ? (step > 0 ? 0 : count - 1)
                          : ((current + step) % count + count) % count);
}

void searchWindow::chooseRow(int row) {
    QListWidgetItem* item = matches_->item(row);
    if (item == nullptr)
        return;
    matches_->setCurrentRow(row);
    emit planetChosen(item->data(Qt::UserRole).toString());
}

void searchWindow::showEvent(QShowEvent* event) {
    FramedWindow::showEvent(event);
    refresh();
    field_->setFocus();
    field_->selectAll();
}

} // namespace orrery::window
