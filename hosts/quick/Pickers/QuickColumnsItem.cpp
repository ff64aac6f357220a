#include "QuickColumnsItem.h"

#include <algorithm>
#include <cmath>

#include <QJSValue>

namespace gx::quick {

QuickColumnsItem::~QuickColumnsItem() {
    if (!wheel_) return;
    wheel_->didChange = nullptr;
    wheel_->setTitle(nullptr);
}

// Properties

void QuickColumnsItem::setColumns(const QVariantList& columns) {
    columns_ = columns;
    if (isComponentComplete()) reload();
    emit columnsChanged();
}

void QuickColumnsItem::setCurrentIndexes(const QList<double>& indexes) {
    const bool areNumbers = std::all_of(indexes.begin(), indexes.end(), [](double index) { return std::isfinite(index) && index >= 0; });
    if (!areNumbers) return warn(QStringLiteral("currentIndexes have to be numbers of rows, 0 or more. They stay as they are."));
    if (indexes == currentIndexes_) return;
    currentIndexes_ = indexes;
    if (isComponentComplete()) {
        const QuickSurroundings::Visit here = visit();
        select();
    }
    emit currentIndexesChanged();
}

void QuickColumnsItem::setColumnWidths(const QList<double>& widths) {
    if (widths == columnWidths_) return;
    columnWidths_ = widths;
    if (isComponentComplete()) reload();
    emit columnWidthsChanged();
}

void QuickColumnsItem::setColumnLabels(const QStringList& labels) {
    if (labels == columnLabels_) return;
    columnLabels_ = labels;
    if (isComponentComplete()) reload();
    emit columnLabelsChanged();
}

void QuickColumnsItem::setTextRole(const QString& role) {
    if (role == textRole_) return;
    textRole_ = role;
    if (isComponentComplete()) reload();
    emit textRoleChanged();
}

// Columns

QuickColumnsItem::Column QuickColumnsItem::columnOf(const QVariant& description, qsizetype index) const {
    const QVariant plain =
        description.metaType() == QMetaType::fromType<QJSValue>() ? description.value<QJSValue>().toVariant() : description;
    Column column;
    if (auto* const model = qobject_cast<QAbstractItemModel*>(plain.value<QObject*>())) {
        column.model = model;
        column.rows = model->rowCount();
        return column;
    }
    const int type = plain.typeId();
    if (type == QMetaType::Int || type == QMetaType::Double || type == QMetaType::UInt || type == QMetaType::LongLong) {
        column.rows = plain.toDouble();
        if (column.rows >= 0) return column;
    } else if (type == QMetaType::QVariantList || type == QMetaType::QStringList) {
        for (const QVariant& title : plain.toList()) column.titles.append(title.toString());
        column.rows = static_cast<double>(column.titles.size());
        return column;
    }
    warn(QStringLiteral("columns[%1] is neither a number of rows, nor a list of texts, nor a model. It has no rows.").arg(index));
    return {};
}

std::optional<std::string> QuickColumnsItem::titleOf(double row, NSInteger column) const {
    if (column < 0 || column >= static_cast<NSInteger>(read_.size()) || !(row >= 0)) return std::nullopt;
    const Column& shown = read_[static_cast<std::size_t>(column)];
    if (shown.model) {
        const QHash<int, QByteArray> roles = shown.model->roleNames();
        const int first = roles.contains(Qt::DisplayRole) || roles.isEmpty() ? Qt::DisplayRole : std::ranges::min(roles.keys());
        const int role = textRole_.isEmpty() ? first : roles.key(textRole_.toUtf8(), first);
        return shown.model->data(shown.model->index(static_cast<int>(row), 0), role).toString().toStdString();
    }
    if (shown.titles.isEmpty()) return QString::number(static_cast<qint64>(row)).toStdString();
    const auto index = static_cast<qsizetype>(row);
    return index < shown.titles.size() ? std::optional(shown.titles[index].toStdString()) : std::nullopt;
}

void QuickColumnsItem::reload() {
    if (!wheel_) return;
    const QuickSurroundings::Visit here = visit();
    for (const Column& column : read_) {
        if (column.model) disconnect(column.model, nullptr, this, nullptr);
    }
    read_.clear();
    std::vector<double> counts;
    for (qsizetype i = 0; i < columns_.size(); ++i) {
        read_.push_back(columnOf(columns_[i], i));
        counts.push_back(read_.back().rows);
        const QAbstractItemModel* const model = read_.back().model;
        if (model == nullptr) continue;
        connect(model, &QAbstractItemModel::rowsInserted, this, &QuickColumnsItem::reload);
        connect(model, &QAbstractItemModel::rowsRemoved, this, &QuickColumnsItem::reload);
        connect(model, &QAbstractItemModel::rowsMoved, this, &QuickColumnsItem::reload);
        connect(model, &QAbstractItemModel::dataChanged, this, &QuickColumnsItem::reload);
        connect(model, &QAbstractItemModel::modelReset, this, &QuickColumnsItem::reload);
        connect(model, &QAbstractItemModel::layoutChanged, this, &QuickColumnsItem::reload);
        connect(model, &QObject::destroyed, this, &QuickColumnsItem::reload);
    }
    wheel_->setRowCounts(counts);
    for (qsizetype i = 0; i < columnWidths_.size(); ++i) wheel_->setWidth_ofColumn(columnWidths_[i], i);
    for (qsizetype i = 0; i < columnLabels_.size(); ++i) wheel_->setLabel_ofColumn(columnLabels_[i].toStdString(), i);
    select();
}

void QuickColumnsItem::select() {
    for (qsizetype i = 0; i < currentIndexes_.size(); ++i) wheel_->setRow_ofColumn(currentIndexes_[i], i);
}

void QuickColumnsItem::userDidSelect() {
    QList<double> indexes;
    for (NSInteger i = 0; i < wheel_->columnCount(); ++i) indexes.append(wheel_->rowOfColumn(i));
    const bool isChanged = indexes != currentIndexes_;
    currentIndexes_ = indexes;
    const QPointer<QuickColumnsItem> self(this); // Handlers may drop the item.
    if (isChanged) emit currentIndexesChanged();
    if (self) notifyMoved();
}

void QuickColumnsItem::surroundingsDidChange(bool) {
    if (!wheel_) return;
    applyName();
    wheel_->reload();
}

void QuickColumnsItem::applyName() {
    const QString name = accessibleName();
    if (!name.isEmpty()) wheel_->setAccessibilityLabel(name.toStdString());
}

void QuickColumnsItem::componentComplete() {
    QuickItem::componentComplete(); // The looks are known from here on.
    const QuickSurroundings::Visit here = visit();
    wheel_ = gx::create<QuickColumns>();
    wheel_->follow();
    wheel_->setTitle([this](double row, NSInteger column) { return titleOf(row, column); });
    wheel_->didChange = [this] { userDidSelect(); };
    applyName();
    reload();
    setRootView(wheel_->view());
}

} // namespace gx::quick
