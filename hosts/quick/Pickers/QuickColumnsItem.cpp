#include "QuickColumnsItem.h"

#include <algorithm>
#include <cmath>

#include <QJSValue>

namespace gx::quick {

namespace {

/// QML has two types of numbers; models of an application in C++ have all of them.
bool isNumber(int type) {
    switch (type) {
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return true;
    default:
        return false;
    }
}

} // namespace

QuickColumnsItem::~QuickColumnsItem() {
    if (!wheel_) return;
    wheel_->didChange = nullptr;
    wheel_->setTitle(nullptr);
}

// Properties

void QuickColumnsItem::setColumns(const QVariantList& columns) {
    columns_ = columns;
    didChange(&QuickColumnsItem::columnsChanged);
}

void QuickColumnsItem::setCurrentIndexes(const QList<double>& indexes) {
    const auto isRow = [](double index) { return std::isfinite(index) && index >= 0 && std::trunc(index) == index; };
    if (!std::ranges::all_of(indexes, isRow)) {
        return warn(QStringLiteral("currentIndexes have to be numbers of rows, 0 or more and whole. They stay as they are."));
    }
    wantedIndexes_ = indexes;
    if (isComponentComplete()) return select();
    if (indexes == currentIndexes_) return;
    currentIndexes_ = indexes;
    emit currentIndexesChanged();
}

void QuickColumnsItem::setColumnWidths(const QList<double>& widths) {
    if (widths == columnWidths_) return;
    columnWidths_ = widths;
    didChange(&QuickColumnsItem::columnWidthsChanged);
}

void QuickColumnsItem::setColumnLabels(const QStringList& labels) {
    if (labels == columnLabels_) return;
    columnLabels_ = labels;
    didChange(&QuickColumnsItem::columnLabelsChanged);
}

void QuickColumnsItem::setTextRole(const QString& role) {
    if (role == textRole_) return;
    textRole_ = role;
    isRoleWarnedOf_ = false;
    didChange(&QuickColumnsItem::textRoleChanged);
}

void QuickColumnsItem::didChange(void (QuickColumnsItem::*changed)()) {
    const QPointer<QuickColumnsItem> self(this); // Handlers may drop the item.
    if (isComponentComplete()) reload();
    if (self) emit(this->*changed)();
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
    if (isNumber(type)) {
        column.rows = plain.toDouble();
        column.isNumbered = true;
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
    if (shown.isNumbered) return QString::number(static_cast<qint64>(row)).toStdString();
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
        const std::size_t column = read_.size();
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
        connect(model, &QObject::destroyed, this, [this, column] { modelDidEnd(column); });
    }
    warnOfRole();
    wheel_->setRowCounts(counts);
    for (qsizetype i = 0; i < columnWidths_.size(); ++i) wheel_->setWidth_ofColumn(columnWidths_[i], i);
    for (qsizetype i = 0; i < columnLabels_.size(); ++i) wheel_->setLabel_ofColumn(columnLabels_[i].toStdString(), i);
    select();
}

void QuickColumnsItem::warnOfRole() {
    if (textRole_.isEmpty() || isRoleWarnedOf_) return;
    for (std::size_t i = 0; i < read_.size(); ++i) {
        if (!read_[i].model) continue;
        const QHash<int, QByteArray> roles = read_[i].model->roleNames();
        // A model may have no roles before it has rows.
        if (roles.isEmpty() || roles.values().contains(textRole_.toUtf8())) continue;
        QStringList names;
        for (const QByteArray& name : roles) names.append(QString::fromUtf8(name));
        names.sort();
        isRoleWarnedOf_ = true;
        return warn(QStringLiteral("textRole \"%1\" is no role of columns[%2], which has %3. It shows another one.")
                        .arg(textRole_)
                        .arg(i)
                        .arg(names.join(QStringLiteral(", "))));
    }
}

/// The model is gone already. Handlers run later, so that none does while a document is taken down.
void QuickColumnsItem::modelDidEnd(std::size_t column) {
    read_[column] = {};
    columns_[static_cast<qsizetype>(column)] = 0;
    QMetaObject::invokeMethod(
        this, [this] { didChange(&QuickColumnsItem::columnsChanged); }, Qt::QueuedConnection);
}

void QuickColumnsItem::select() {
    if (!wheel_) return;
    const QuickSurroundings::Visit here = visit();
    for (qsizetype i = 0; i < wantedIndexes_.size(); ++i) wheel_->setRow_ofColumn(wantedIndexes_[i], i);
    if (takeSelectedRows()) emit currentIndexesChanged();
}

/// Returns whether they are others than before.
bool QuickColumnsItem::takeSelectedRows() {
    QList<double> indexes;
    for (NSInteger i = 0; i < wheel_->columnCount(); ++i) indexes.append(wheel_->rowOfColumn(i));
    std::swap(indexes, currentIndexes_);
    return indexes != currentIndexes_;
}

void QuickColumnsItem::userDidSelect() {
    const bool isChanged = takeSelectedRows();
    for (qsizetype i = 0; i < currentIndexes_.size(); ++i) {
        const bool hasRows = read_[static_cast<std::size_t>(i)].rows > 0;
        if (i >= wantedIndexes_.size()) wantedIndexes_.append(0);
        if (hasRows) wantedIndexes_[i] = currentIndexes_[i];
    }
    const QPointer<QuickColumnsItem> self(this); // Handlers may drop the item.
    if (isChanged) emit currentIndexesChanged();
    if (self) notifyMoved();
}

void QuickColumnsItem::surroundingsDidChange(bool) {
    if (!wheel_) return;
    wheel_->setAccessibilityLabel(accessibilityLabel());
    wheel_->reload();
}

void QuickColumnsItem::componentComplete() {
    QuickItem::componentComplete(); // The looks are known from here on.
    const QuickSurroundings::Visit here = visit();
    wheel_ = gx::create<QuickColumns>();
    wheel_->becomeDelegate();
    wheel_->setTitle([this](double row, NSInteger column) { return titleOf(row, column); });
    wheel_->didChange = [this] { userDidSelect(); };
    wheel_->setAccessibilityLabel(accessibilityLabel());
    setRootView(wheel_->view());
    reload();
}

} // namespace gx::quick
