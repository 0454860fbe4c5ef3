// A QTreeWidget as a report-style list view: what the VB wrapper and the control window both do
// to it. Column keys, tags and alignments live on the header item, each item's key and tag on the
// item, the extended style as a property of the widget.
#pragma once

#include <QString>
#include <QTreeWidget>
#include <cstdint>
#include <functional>
#include <vector>

namespace velkor6::qt::listview {

inline constexpr int keyRole = Qt::UserRole + 0x5601;
inline constexpr int tagRole = Qt::UserRole + 0x5602;
// A number no other item or column of the tree has, so that a wrapper tells its item from a
// newer one at the same address, and finds its column after others were inserted.
inline constexpr int serialRole = Qt::UserRole + 0x5603;

// Extended list-view styles (ListViewExStyleConsts) that Qt has a counterpart for.
namespace exstyle {
inline constexpr std::uint32_t checkBoxes = 0x4;
inline constexpr std::uint32_t headerDragDrop = 0x10;
inline constexpr std::uint32_t fullRowSelect = 0x20;
} // namespace exstyle

// A number for an item or column that the tree never gave before.
qlonglong nextSerial(QTreeWidget& tree);

// VB's column alignment: 0 left, 1 right, 2 centre.
int columnAlignment(const QTreeWidget& tree, int column);
void setColumnAlignment(QTreeWidget& tree, int column, int alignment);
// Inserts an empty column before column at (0-based; the column count appends); the cells of
// the columns after it move with their headers.
void insertColumn(QTreeWidget& tree, int at);
void removeColumn(QTreeWidget& tree, int at);
// The first column whose key is key (not case-sensitive); -1 for none.
int columnOfKey(const QTreeWidget& tree, const QString& key);

// A new top-level item at index (the count appends), aligned as its columns and with a check
// box when the list shows them.
QTreeWidgetItem* insertItem(QTreeWidget& tree, int index, const QString& text);
// Where an item of this text goes in a list sorted by the tree's own rule.
int sortedPosition(const QTreeWidget& tree, const QString& text);
std::int64_t serialOf(const QTreeWidgetItem& item);
// The first top-level item whose key is key (not case-sensitive); -1 for none.
int itemOfKey(const QTreeWidget& tree, const QString& key);

// The extended style as a number; bits without a Qt counterpart are kept as given.
std::uint32_t extendedStyle(const QTreeWidget& tree);
void setExtendedStyle(QTreeWidget& tree, std::uint32_t style);

// Sorted / SortKey / SortOrder, kept on the widget.
bool sorted(const QTreeWidget& tree);
int sortKey(const QTreeWidget& tree);
int sortOrder(const QTreeWidget& tree);
void setSorted(QTreeWidget& tree, bool on);
void setSortKey(QTreeWidget& tree, int column);
void setSortOrder(QTreeWidget& tree, int order);
// Orders the items by the text of column SortKey, not case-sensitive, descending for SortOrder
// 1; equal texts keep their order.
void sortByText(QTreeWidget& tree);

// The order a stable merge sort gives n elements when it only asks whether element a goes
// after element b; the result lists the old indices in their new order.
std::vector<int> mergeOrder(int n, const std::function<bool(int, int)>& goesAfter);
// Puts the top-level items in this order of their old indices, keeping their selection and the
// current item.
void reorder(QTreeWidget& tree, const std::vector<int>& order);

} // namespace velkor6::qt::listview
