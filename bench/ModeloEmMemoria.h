// A table model whose texts are all in memory: the least that a table view over anything can cost.
//
//     TModeloEmMemoria model(10000, 9);
#pragma once
#include <QAbstractTableModel>
#include <vector>

class TModeloEmMemoria : public QAbstractTableModel {
  public:
    TModeloEmMemoria(int rows, int columns) : FColumns(columns), FTexts(size_t(rows) * size_t(columns)) {
        for (size_t i = 0; i < FTexts.size(); ++i) FTexts[i] = QStringLiteral("Maria Aparecida %1").arg(i);
    }
    int rowCount(const QModelIndex& = {}) const override { return int(FTexts.size()) / FColumns; }
    int columnCount(const QModelIndex& = {}) const override { return FColumns; }
    QVariant data(const QModelIndex& index, int role) const override {
        if (role != Qt::DisplayRole) return {};
        return FTexts[size_t(index.row()) * size_t(FColumns) + size_t(index.column())];
    }

  private:
    int FColumns;
    std::vector<QString> FTexts;
};
