#pragma once

#include <vector>

#include <QAbstractItemModel>
#include <QVariantList>

#include "QuickColumns.h"
#include "QuickItem.h"

namespace gx::quick {

/// A wheel of an application's own columns: the content of `WheelPicker`.
///
/// A column is a number (so many rows, numbered from 0), a list of texts, or a model, of which the
/// role `textRole` is shown. Rows are only looked at when they come into sight, so a column may
/// have 2^53 of them. A model may change at any time.
class QuickColumnsItem : public gx::quick::QuickItem { // Its whole name: Qt's tools find no other.
    Q_OBJECT
    QML_NAMED_ELEMENT(ColumnsItem)
    /// The columns from the left: each a number of rows, which are numbered from 0, a list of
    /// texts, or a model, such as `columns: [model]`. Anything else gives a warning, and a column
    /// without rows; so does a model that ends, without a warning.
    Q_PROPERTY(QVariantList columns READ columns WRITE setColumns NOTIFY columnsChanged FINAL)
    /// The selected row of each column, from 0; 0 of a column without rows. An index beyond the
    /// rows selects the last one, and is remembered until there are more rows or the user selects.
    /// Columns beyond a shorter list keep their rows. A list with something else than whole numbers
    /// from 0 is ignored with a warning.
    Q_PROPERTY(QList<double> currentIndexes READ currentIndexes WRITE setCurrentIndexes NOTIFY currentIndexesChanged FINAL)
    /// In points; a column without one, or with 0, gets an equal share.
    Q_PROPERTY(QList<double> columnWidths READ columnWidths WRITE setColumnWidths NOTIFY columnWidthsChanged FINAL)
    /// What a screen reader calls the columns.
    Q_PROPERTY(QStringList columnLabels READ columnLabels WRITE setColumnLabels NOTIFY columnLabelsChanged FINAL)
    /// The role of the models that is shown, such as "name". Empty for the one that a model
    /// displays; where it says none, it is the model's choice. A model without the role gives a
    /// warning, and shows that one.
    Q_PROPERTY(QString textRole READ textRole WRITE setTextRole NOTIFY textRoleChanged FINAL)

public:
    ~QuickColumnsItem() override;

    const QVariantList& columns() const { return columns_; }
    void setColumns(const QVariantList& columns);
    const QList<double>& currentIndexes() const { return currentIndexes_; }
    void setCurrentIndexes(const QList<double>& indexes);
    const QList<double>& columnWidths() const { return columnWidths_; }
    void setColumnWidths(const QList<double>& widths);
    const QStringList& columnLabels() const { return columnLabels_; }
    void setColumnLabels(const QStringList& labels);
    const QString& textRole() const { return textRole_; }
    void setTextRole(const QString& role);

signals:
    void columnsChanged();
    void currentIndexesChanged();
    void columnWidthsChanged();
    void columnLabelsChanged();
    void textRoleChanged();

protected:
    void surroundingsDidChange(bool isRowHeightChanged) override;
    void componentComplete() override;

private:
    struct Column {
        double rows = 0;
        bool isNumbered = false;
        QStringList titles;
        QPointer<QAbstractItemModel> model;
    };
    Column columnOf(const QVariant& description, qsizetype index) const;
    std::optional<std::string> titleOf(double row, NSInteger column) const;
    /// Shows a changed property, then emits its signal.
    void didChange(void (QuickColumnsItem::*changed)());
    void reload();
    void warnOfRole();
    void modelDidEnd(std::size_t column);
    void select();
    bool takeSelectedRows();
    void userDidSelect();

    QVariantList columns_;
    QList<double> currentIndexes_;
    /// As they were last set or selected. Rows may come later.
    QList<double> wantedIndexes_;
    QList<double> columnWidths_;
    QStringList columnLabels_;
    QString textRole_;
    bool isRoleWarnedOf_ = false;
    std::vector<Column> read_;
    Ref<QuickColumns> wheel_;
};

} // namespace gx::quick
