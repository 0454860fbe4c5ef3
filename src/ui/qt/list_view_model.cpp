#include "ui/qt/list_view_model.h"

#include <QHeaderView>
#include <algorithm>
#include <numeric>

namespace velkor6::qt::listview {
namespace {

constexpr char exStyleProperty[] = "_velkor6_exstyle";
constexpr char sortedProperty[] = "_velkor6_sorted";
constexpr char sortKeyProperty[] = "_velkor6_sortkey";
constexpr char sortOrderProperty[] = "_velkor6_sortorder";
constexpr char serialProperty[] = "_velkor6_nextserial";
constexpr std::uint32_t mappedStyles =
    exstyle::checkBoxes | exstyle::headerDragDrop | exstyle::fullRowSelect;

Qt::Alignment qtAlignment(int alignment) {
    switch (alignment) {
    case 1:
        return Qt::AlignRight | Qt::AlignVCenter;
    case 2:
        return Qt::AlignHCenter | Qt::AlignVCenter;
    default:
        return Qt::AlignLeft | Qt::AlignVCenter;
    }
}

// One column's header and cells moved to another column.
void moveColumn(QTreeWidget& tree, int from, int to) {
    QTreeWidgetItem* header = tree.headerItem();
    for (int role :
         {int(Qt::DisplayRole), int(Qt::TextAlignmentRole), keyRole, tagRole, serialRole})
        header->setData(to, role, header->data(from, role));
    for (int i = 0; i < tree.topLevelItemCount(); ++i) {
        QTreeWidgetItem* item = tree.topLevelItem(i);
        item->setText(to, item->text(from));
        item->setData(to, Qt::TextAlignmentRole, item->data(from, Qt::TextAlignmentRole));
    }
    tree.setColumnWidth(to, tree.columnWidth(from));
}

void clearColumn(QTreeWidget& tree, int column) {
    QTreeWidgetItem* header = tree.headerItem();
    for (int role : {int(Qt::DisplayRole), keyRole, tagRole, serialRole})
        header->setData(column, role, QVariant());
    header->setTextAlignment(column, qtAlignment(0));
    for (int i = 0; i < tree.topLevelItemCount(); ++i) {
        QTreeWidgetItem* item = tree.topLevelItem(i);
        item->setText(column, QString());
        item->setTextAlignment(column, qtAlignment(0));
    }
}

bool hasCheckBox(const QTreeWidgetItem& item) {
    return item.data(0, Qt::CheckStateRole).isValid();
}

} // namespace

qlonglong nextSerial(QTreeWidget& tree) {
    const qlonglong serial = tree.property(serialProperty).toLongLong() + 1;
    tree.setProperty(serialProperty, serial);
    return serial;
}

int columnAlignment(const QTreeWidget& tree, int column) {
    const int alignment = tree.headerItem()->data(column, Qt::TextAlignmentRole).toInt();
    if ((alignment & Qt::AlignRight) != 0)
        return 1;
    if ((alignment & Qt::AlignHCenter) != 0)
        return 2;
    return 0;
}

void setColumnAlignment(QTreeWidget& tree, int column, int alignment) {
    const Qt::Alignment a = qtAlignment(alignment);
    tree.headerItem()->setTextAlignment(column, a);
    for (int i = 0; i < tree.topLevelItemCount(); ++i)
        tree.topLevelItem(i)->setTextAlignment(column, a);
}

void insertColumn(QTreeWidget& tree, int at) {
    const int count = tree.columnCount();
    tree.setColumnCount(count + 1);
    for (int c = count; c > at; --c)
        moveColumn(tree, c - 1, c);
    clearColumn(tree, at);
}

void removeColumn(QTreeWidget& tree, int at) {
    const int count = tree.columnCount();
    for (int c = at; c + 1 < count; ++c)
        moveColumn(tree, c + 1, c);
    tree.setColumnCount(count - 1);
}

int columnOfKey(const QTreeWidget& tree, const QString& key) {
    for (int c = 0; c < tree.columnCount(); ++c) {
        const QVariant k = tree.headerItem()->data(c, keyRole);
        if (k.isValid() && k.toString().compare(key, Qt::CaseInsensitive) == 0)
            return c;
    }
    return -1;
}

QTreeWidgetItem* insertItem(QTreeWidget& tree, int index, const QString& text) {
    auto* item = new QTreeWidgetItem;
    item->setText(0, text);
    item->setData(0, serialRole, nextSerial(tree));
    for (int c = 0; c < tree.columnCount(); ++c)
        item->setTextAlignment(c, qtAlignment(columnAlignment(tree, c)));
    if ((extendedStyle(tree) & exstyle::checkBoxes) != 0)
        item->setCheckState(0, Qt::Unchecked);
    tree.insertTopLevelItem(index, item);
    return item;
}

int sortedPosition(const QTreeWidget& tree, const QString& text) {
    const int column = sortKey(tree);
    const bool descending = sortOrder(tree) == 1;
    int at = 0;
    // After the equal ones, as an item added last to a stable sort would go.
    while (at < tree.topLevelItemCount()) {
        const int c = tree.topLevelItem(at)->text(column).compare(column == 0 ? text : QString(),
                                                                  Qt::CaseInsensitive);
        if (descending ? c < 0 : c > 0)
            break;
        ++at;
    }
    return at;
}

std::int64_t serialOf(const QTreeWidgetItem& item) {
    return item.data(0, serialRole).toLongLong();
}

int itemOfKey(const QTreeWidget& tree, const QString& key) {
    for (int i = 0; i < tree.topLevelItemCount(); ++i) {
        const QVariant k = tree.topLevelItem(i)->data(0, keyRole);
        if (k.isValid() && k.toString().compare(key, Qt::CaseInsensitive) == 0)
            return i;
    }
    return -1;
}

std::uint32_t extendedStyle(const QTreeWidget& tree) {
    std::uint32_t style = tree.property(exStyleProperty).toUInt() & ~mappedStyles;
    if (tree.selectionBehavior() == QAbstractItemView::SelectRows)
        style |= exstyle::fullRowSelect;
    if (tree.header()->sectionsMovable())
        style |= exstyle::headerDragDrop;
    if (tree.property(exStyleProperty).isValid()
            ? (tree.property(exStyleProperty).toUInt() & exstyle::checkBoxes) != 0
            : tree.topLevelItemCount() > 0 && hasCheckBox(*tree.topLevelItem(0)))
        style |= exstyle::checkBoxes;
    return style;
}

void setExtendedStyle(QTreeWidget& tree, std::uint32_t style) {
    tree.setProperty(exStyleProperty, style);
    tree.setSelectionBehavior((style & exstyle::fullRowSelect) != 0
                                  ? QAbstractItemView::SelectRows
                                  : QAbstractItemView::SelectItems);
    tree.header()->setSectionsMovable((style & exstyle::headerDragDrop) != 0);
    const bool boxes = (style & exstyle::checkBoxes) != 0;
    for (int i = 0; i < tree.topLevelItemCount(); ++i) {
        QTreeWidgetItem* item = tree.topLevelItem(i);
        if (boxes && !hasCheckBox(*item))
            item->setCheckState(0, Qt::Unchecked);
        else if (!boxes)
            item->setData(0, Qt::CheckStateRole, QVariant());
    }
}

bool sorted(const QTreeWidget& tree) {
    return tree.property(sortedProperty).toBool();
}
int sortKey(const QTreeWidget& tree) {
    return tree.property(sortKeyProperty).toInt();
}
int sortOrder(const QTreeWidget& tree) {
    return tree.property(sortOrderProperty).toInt();
}

void setSorted(QTreeWidget& tree, bool on) {
    tree.setProperty(sortedProperty, on);
    if (on)
        sortByText(tree);
}

void setSortKey(QTreeWidget& tree, int column) {
    tree.setProperty(sortKeyProperty, column);
    if (sorted(tree))
        sortByText(tree);
}

void setSortOrder(QTreeWidget& tree, int order) {
    tree.setProperty(sortOrderProperty, order);
    if (sorted(tree))
        sortByText(tree);
}

void sortByText(QTreeWidget& tree) {
    const int column = sortKey(tree);
    const bool descending = sortOrder(tree) == 1;
    std::vector<int> order(static_cast<std::size_t>(tree.topLevelItemCount()));
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
        const int c = tree.topLevelItem(a)->text(column).compare(tree.topLevelItem(b)->text(column),
                                                                 Qt::CaseInsensitive);
        return descending ? c > 0 : c < 0;
    });
    reorder(tree, order);
}

std::vector<int> mergeOrder(int n, const std::function<bool(int, int)>& goesAfter) {
    std::vector<int> order(static_cast<std::size_t>(std::max(n, 0)));
    std::iota(order.begin(), order.end(), 0);
    std::vector<int> merged(order.size());
    const auto size = static_cast<std::ptrdiff_t>(order.size());
    for (std::ptrdiff_t width = 1; width < size; width *= 2) {
        for (std::ptrdiff_t lo = 0; lo < size; lo += 2 * width) {
            const std::ptrdiff_t mid = std::min(lo + width, size);
            const std::ptrdiff_t hi = std::min(lo + 2 * width, size);
            std::ptrdiff_t i = lo, j = mid, k = lo;
            // Only a "goes after" answer moves the right run's element first, so equal ones and
            // a comparer that answers nonsense still give each index exactly once.
            while (i < mid && j < hi)
                merged[k++] = goesAfter(order[i], order[j]) ? order[j++] : order[i++];
            while (i < mid)
                merged[k++] = order[i++];
            while (j < hi)
                merged[k++] = order[j++];
        }
        order.swap(merged);
    }
    return order;
}

void reorder(QTreeWidget& tree, const std::vector<int>& order) {
    const int count = tree.topLevelItemCount();
    if (static_cast<int>(order.size()) != count)
        return;
    QTreeWidgetItem* current = tree.currentItem();
    std::vector<QTreeWidgetItem*> items;
    std::vector<bool> selected;
    for (int i = 0; i < count; ++i) {
        items.push_back(tree.topLevelItem(i));
        selected.push_back(items.back()->isSelected());
    }
    // The items leave and come back; the view forgets their selection on the way.
    static_cast<void>(tree.invisibleRootItem()->takeChildren());
    QList<QTreeWidgetItem*> ordered;
    for (int index : order)
        ordered.append(items[static_cast<std::size_t>(index)]);
    tree.addTopLevelItems(ordered);
    if (current != nullptr)
        tree.setCurrentItem(current, 0, QItemSelectionModel::NoUpdate);
    for (int i = 0; i < count; ++i)
        items[static_cast<std::size_t>(i)]->setSelected(selected[static_cast<std::size_t>(i)]);
}

} // namespace velkor6::qt::listview
