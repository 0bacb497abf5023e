#pragma once

#include "core/model/Color.h"
#include "customWin/tableView1/MetalPopupButton.h"
#include "customWin/tableView1/PlanetTableModel.h"

#include <QStyledItemDelegate>

#include <functional>

namespace orrery::window {

// Where the cells' controls report a change: the controller's handlers of the columns.
struct CellHandlers {
    std::function<void(PlanetColumn column, const QString& text)> textChanged;
    std::function<void(int state)> stateChanged;
    std::function<void(PlanetColumn column, int index)> indexChanged;
    std::function<void(const Color& color)> colorChanged;
};

// The delegates paint every cell as its control looks when it is not live; the selected
// row gets the live controls as editors. None of them lets the view commit or close an
// editor on its own: the controls report to the handlers, and the table shows what the
// controller stored.
class CellDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    CellDelegate(const CellHandlers& handlers, QObject* parent)
        : QStyledItemDelegate(parent), handlers_(handlers) {}

    bool eventFilter(QObject*, QEvent*) override { return false; }
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex&) const override {
        editor->setGeometry(option.rect);
    }
    void setModelData(QWidget*, QAbstractItemModel*, const QModelIndex&) const override {}

protected:
    const CellHandlers& handlers_;
};

class TextCellDelegate : public CellDelegate {
    Q_OBJECT
public:
    using CellDelegate::CellDelegate;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
};

class StateCellDelegate : public CellDelegate {
    Q_OBJECT
public:
    using CellDelegate::CellDelegate;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
};

class ChoiceCellDelegate : public CellDelegate {
    Q_OBJECT
public:
    ChoiceCellDelegate(MetalPopupButton::Kind kind, const CellHandlers& handlers, QObject* parent)
        : CellDelegate(handlers, parent), kind_(kind) {}
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;

private:
    MetalPopupButton::Kind kind_;
};

class ColorCellDelegate : public CellDelegate {
    Q_OBJECT
public:
    using CellDelegate::CellDelegate;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
};

} // namespace orrery::window
