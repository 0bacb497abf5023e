#pragma once

#include "core/model/PlanetList.h"

#include <QAbstractTableModel>

#include <array>

namespace orrery::window {

// The nine columns of the planet table, in order; each shows one key of the record.
enum class PlanetColumn { name, state, style, surface, x, y, z, radius, color };
inline constexpr int kPlanetColumnCount = 9;

struct PlanetColumnInfo {
    const char* identifier; // also the key of the column's title
    PlanetKey key;
};
inline constexpr std::array<PlanetColumnInfo, kPlanetColumnCount> kPlanetColumns{{
    {"nameColumn", PlanetKey::name},
    {"stateColumn", PlanetKey::state},
    {"styleColumn", PlanetKey::styleindex},
    {"surfaceColumn", PlanetKey::surfaceindex},
    {"xColumn", PlanetKey::xvalue},
    {"yColumn", PlanetKey::yvalue},
    {"zColumn", PlanetKey::zvalue},
    {"radiusColumn", PlanetKey::radius},
    {"colorColumn", PlanetKey::color},
}};

inline PlanetColumn columnAt(int column) {
    return static_cast<PlanetColumn>(column);
}

// The planet list as a table: row i is record i, values shown exactly as stored. The model
// only reads; every change goes through the controller, which then says what changed.
class PlanetTableModel : public QAbstractTableModel {
    Q_OBJECT
public:
    PlanetTableModel(const PlanetList& planets, QObject* parent);

    const PlanetRecord& record(int row) const { return planets_.at(static_cast<std::size_t>(row)); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    // After the controller changed the list.
    void rowChanged(int row);
    void allRowsChanged();
    void rowInserted(int row);
    void rowRemoved(int row);
    void reload();

signals:
    // After every change of the number of rows, as the all button and export follow it.
    void rowCountChanged(int count);

private:
    const PlanetList& planets_;
};

} // namespace orrery::window
