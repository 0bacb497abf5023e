#include "customWin/tableView1/PlanetTableModel.h"

#include "customWin/Strings.h"

namespace orrery::window {

PlanetTableModel::PlanetTableModel(const PlanetList& planets, QObject* parent)
    : QAbstractTableModel(parent), planets_(planets) {}

int PlanetTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(planets_.size());
}

int PlanetTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : kPlanetColumnCount;
}

QVariant PlanetTableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount() || index.column() >= kPlanetColumnCount)
        return {};
    if (role != Qt::DisplayRole && role != Qt::EditRole && role != Qt::AccessibleTextRole)
        return {};
    const PlanetKey key = kPlanetColumns[static_cast<std::size_t>(index.column())].key;
    const std::string* value = record(index.row()).text(key);
    return value != nullptr ? QString::fromStdString(*value) : QVariant();
}

QVariant PlanetTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole || section < 0)
        return {};
    if (orientation == Qt::Vertical)
        return section + 1;
    if (section >= kPlanetColumnCount)
        return {};
    return text(kPlanetColumns[static_cast<std::size_t>(section)].identifier);
}

Qt::ItemFlags PlanetTableModel::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable;
}

void PlanetTableModel::rowChanged(int row) {
    emit dataChanged(index(row, 0), index(row, kPlanetColumnCount - 1));
}

void PlanetTableModel::allRowsChanged() {
    if (rowCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, kPlanetColumnCount - 1));
}

void PlanetTableModel::rowInserted(int row) {
    beginInsertRows({}, row, row);
    endInsertRows();
    emit rowCountChanged(rowCount());
}

void PlanetTableModel::rowRemoved(int row) {
    beginRemoveRows({}, row, row);
    endRemoveRows();
    emit rowCountChanged(rowCount());
}

void PlanetTableModel::reload() {
    beginResetModel();
    endResetModel();
    emit rowCountChanged(rowCount());
}

} // namespace orrery::window
