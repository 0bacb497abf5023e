#include "customWin/tableView1/CellDelegates.h"

#include "core/model/TextNumber.h"
#include "customWin/CheckedQuietly.h"
#include "customWin/Strings.h"
#include "customWin/tableView1/checkButton1_02.h"
#include "customWin/tableView1/colorWell1_09.h"
#include "customWin/tableView1/textField1.h"

#include <QPainter>

namespace orrery::window {
namespace {

constexpr int kCellPadding = 6;
constexpr int kCheckSide = 20;

const PlanetRecord& recordAt(const QModelIndex& index) {
    return static_cast<const PlanetTableModel*>(index.model())->record(index.row());
}

const char* textFieldName(PlanetColumn column) {
    switch (column) {
    case PlanetColumn::name:
        return "textField1_01";
    case PlanetColumn::x:
        return "textField1_05";
    case PlanetColumn::y:
        return "textField1_06";
    case PlanetColumn::z:
        return "textField1_07";
    default:
        return "textField1_08";
    }
}

QString columnTitle(const QModelIndex& index) {
    return text(kPlanetColumns[static_cast<std::size_t>(index.column())].identifier);
}

// The row's background: the selection colour for the selected row, else stripes.
void paintBackground(QPainter* painter, const QStyleOptionViewItem& option) {
    const bool selected = option.state & QStyle::State_Selected;
    const QPalette& colours = option.palette;
    const QBrush fill = selected ? colours.brush(QPalette::Highlight)
                        : (option.features & QStyleOptionViewItem::Alternate)
                            ? colours.brush(QPalette::AlternateBase)
                            : colours.brush(QPalette::Base);
    painter->fillRect(option.rect, fill);
}

// The selected row has its live controls over the cells: only its background is painted.
bool hasControls(const QStyleOptionViewItem& option) {
    return option.state & QStyle::State_Selected;
}

QColor textColour(const QStyleOptionViewItem& option) {
    return option.palette.color((option.state & QStyle::State_Selected) ? QPalette::HighlightedText
                                                                        : QPalette::Text);
}

} // namespace

void TextCellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
    paintBackground(painter, option);
    if (hasControls(option))
        return;
    painter->setPen(textColour(option));
    const QRect area = option.rect.adjusted(kCellPadding, 0, -kCellPadding, 0);
    const bool number = columnAt(index.column()) != PlanetColumn::name;
    const QString value =
        option.fontMetrics.elidedText(index.data().toString(), Qt::ElideRight, area.width());
    painter->drawText(area, Qt::AlignVCenter | (number ? Qt::AlignRight : Qt::AlignLeft), value);
}

QWidget* TextCellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                        const QModelIndex& index) const {
    auto* field = new textField1(parent);
    const PlanetColumn column = columnAt(index.column());
    field->setObjectName(QLatin1String(textFieldName(column)));
    field->setAccessibleName(columnTitle(index));
    if (column != PlanetColumn::name)
        field->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connect(field, &textField1::commandIssued, this,
            [this, column](const QString& typed) { handlers_.textChanged(column, typed); });
    connect(field, &textField1::leaveRequested, parent,
            [parent] { parent->parentWidget()->setFocus(Qt::ShortcutFocusReason); });
    return field;
}

void TextCellDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    static_cast<textField1*>(editor)->setText(index.data().toString());
}

void StateCellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const {
    paintBackground(painter, option);
    if (hasControls(option))
        return;
    const QRectF frame(option.rect.center().x() - kCheckSide / 2.0 + 1,
                       option.rect.center().y() - kCheckSide / 2.0 + 1, kCheckSide, kCheckSide);
    checkButtonStyle1_02(*painter, frame, false, false, isShown(recordAt(index)));
}

QWidget* StateCellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                         const QModelIndex& index) const {
    auto* box = new checkButton1_02(parent);
    box->setObjectName(QStringLiteral("checkButton1_02"));
    box->setAccessibleName(columnTitle(index));
    connect(box, &QAbstractButton::toggled, this,
            [this](bool on) { handlers_.stateChanged(on ? 1 : 0); });
    return box;
}

void StateCellDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    setCheckedQuietly(*static_cast<checkButton1_02*>(editor), isShown(recordAt(index)));
}

void ChoiceCellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const {
    paintBackground(painter, option);
    if (hasControls(option))
        return;
    const long choice = static_cast<long>(integerValue(index.data().toString().toStdString()));
    const QPixmap picture = cellSwatch(kind_, choice);
    QRect area = option.rect.adjusted(kCellPadding, 0, -kCellPadding, 0);
    if (!picture.isNull()) {
        const QSize size = picture.deviceIndependentSize().toSize();
        painter->drawPixmap(
            QRect(QPoint(area.left(), area.center().y() - size.height() / 2 + 1), size), picture);
        area.setLeft(area.left() + size.width() + kCellPadding);
    }
    painter->setPen(textColour(option));
    painter->drawText(area, Qt::AlignVCenter | Qt::AlignLeft,
                      choice <= 0 ? text("selectOne") : QString::number(choice));
}

QWidget* ChoiceCellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                          const QModelIndex& index) const {
    auto* button = new MetalPopupButton(kind_, parent);
    button->setAccessibleName(columnTitle(index));
    const PlanetColumn column = columnAt(index.column());
    connect(button, &MetalPopupButton::indexChosen, this,
            [this, column](int chosen) { handlers_.indexChanged(column, chosen); });
    return button;
}

void ChoiceCellDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    static_cast<MetalPopupButton*>(editor)->setIndex(
        static_cast<long>(integerValue(index.data().toString().toStdString())));
}

void ColorCellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const {
    paintBackground(painter, option);
    if (hasControls(option))
        return;
    paintColorSwatch(*painter, QRectF(option.rect), recordAt(index).color, false);
}

QWidget* ColorCellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                         const QModelIndex& index) const {
    auto* well = new colorWell1_09(parent);
    well->setAccessibleName(columnTitle(index));
    connect(well, &colorWell1_09::colorChosen, this,
            [this](const Color& chosen) { handlers_.colorChanged(chosen); });
    return well;
}

void ColorCellDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    static_cast<colorWell1_09*>(editor)->setColor(recordAt(index).color);
}

} // namespace orrery::window
