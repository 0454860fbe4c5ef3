// QTreeWidget as a ListView: the control, its ListItems and ColumnHeaders.
#include "ui/qt/list_view_model.h"
#include "ui/qt/widget_object.h"

#include <QHeaderView>
#include <QTreeWidget>

namespace velkor6::qt {
namespace {

using namespace listview;

// VB's default column width, 1440 twips.
constexpr int defaultColumnWidth = 96;

QTreeWidget& alive(const QPointer<QTreeWidget>& tree) {
    if (tree.isNull())
        raise(ctlerr::disconnected);
    return *tree;
}

std::int32_t alignmentArgument(const Variant& v) {
    const std::int32_t a = toInt(v);
    if (a < 0 || a > 2)
        raise(ctlerr::invalidPropertyValue);
    return a;
}

// A list item: the item, told apart from a newer one at the same address by its serial.
class ListItem final : public Object {
public:
    ListItem(QTreeWidget* tree, QTreeWidgetItem* item) : tree_(tree), item_(item) {
        if (serialOf(*item) == 0)
            item->setData(0, serialRole, nextSerial(*tree));
        serial_ = serialOf(*item);
    }

    std::u16string typeName() const override { return u"ListItem"; }

    // The item, or nullptr when it has left the list.
    QTreeWidgetItem* item() const {
        if (tree_.isNull() || tree_->indexOfTopLevelItem(item_) < 0 || serialOf(*item_) != serial_)
            return nullptr;
        return item_;
    }
    const QTreeWidget* tree() const { return tree_.data(); }

    Variant call(std::u16string_view name, CallKind kind, std::span<Variant> args) override {
        QTreeWidgetItem* i = item();
        if (i == nullptr)
            raise(ctlerr::disconnected);
        QTreeWidget& tree = *tree_;
        const MemberCall c{name, kind, args};
        if (c.named(u"Text") || name.empty()) {
            if (c.writes())
                i->setText(0, toText(c.value()));
            return c.writes() ? Variant() : text(i->text(0));
        }
        if (c.named(u"SubItems")) {
            const std::int32_t sub = toInt(c.arg(0));
            if (sub < 1 || sub >= tree.columnCount())
                raise(ctlerr::indexOutOfBounds);
            if (c.writes())
                i->setText(sub, toText(c.value()));
            return c.writes() ? Variant() : text(i->text(sub));
        }
        if (c.named(u"Selected")) {
            if (!c.writes())
                return i->isSelected();
            const bool on = toBool(c.value());
            if (on && tree.selectionMode() != QAbstractItemView::ExtendedSelection &&
                tree.selectionMode() != QAbstractItemView::MultiSelection)
                tree.clearSelection();
            i->setSelected(on);
            return Variant();
        }
        if (c.named(u"Checked")) {
            if (c.writes())
                i->setCheckState(0, toBool(c.value()) ? Qt::Checked : Qt::Unchecked);
            return c.writes() ? Variant()
                              : Variant(i->data(0, Qt::CheckStateRole).toInt() == Qt::Checked);
        }
        if (c.named(u"Index")) {
            c.readOnly();
            return tree.indexOfTopLevelItem(i) + 1;
        }
        if (c.named(u"Key")) {
            if (!c.writes())
                return text(i->data(0, keyRole).toString());
            const QString key = toText(c.value());
            const int owner = itemOfKey(tree, key);
            if (!key.isEmpty() && owner >= 0 && tree.topLevelItem(owner) != i)
                raise(ctlerr::keyNotUnique);
            i->setData(0, keyRole, key);
            return Variant();
        }
        if (c.named(u"Tag")) {
            if (c.writes())
                i->setData(0, tagRole, toText(c.value()));
            return c.writes() ? Variant() : text(i->data(0, tagRole).toString());
        }
        if (c.named(u"Icon") || c.named(u"SmallIcon")) {
            // Pictures come from image lists, which a tree widget does not have.
            if (c.writes())
                raise(ctlerr::noImageList);
            return Variant();
        }
        if (c.named(u"EnsureVisible")) {
            tree.scrollToItem(i);
            return true;
        }
        raise(vberr::noSuchMember);
    }

private:
    QPointer<QTreeWidget> tree_;
    QTreeWidgetItem* item_;
    std::int64_t serial_ = 0;
};

ObjectRef listItem(QTreeWidget& tree, int index) {
    return std::make_shared<ListItem>(&tree, tree.topLevelItem(index));
}

// A 1-based index or a key, as VB's collections of items take them.
int itemIndex(QTreeWidget& tree, const Variant& which) {
    if (which.isString()) {
        const int found = itemOfKey(tree, toQString(which.string()));
        if (found < 0)
            raise(ctlerr::elementNotFound);
        return found;
    }
    const std::int32_t index = toInt(which);
    if (index < 1 || index > tree.topLevelItemCount())
        raise(ctlerr::indexOutOfBounds);
    return index - 1;
}

class ListItems final : public Object {
public:
    explicit ListItems(QTreeWidget* tree) : tree_(tree) {}

    std::u16string typeName() const override { return u"ListItems"; }

    Variant call(std::u16string_view name, CallKind kind, std::span<Variant> args) override {
        QTreeWidget& tree = alive(tree_);
        const MemberCall c{name, kind, args};
        if (c.named(u"Count")) {
            c.readOnly();
            return tree.topLevelItemCount();
        }
        if (c.named(u"Item") || name.empty()) {
            c.readOnly();
            return listItem(tree, itemIndex(tree, c.arg(0)));
        }
        if (c.named(u"Add")) {
            int at = tree.topLevelItemCount();
            if (c.has(0)) {
                at = toInt(c.arg(0)) - 1;
                if (at < 0 || at > tree.topLevelItemCount())
                    raise(ctlerr::indexOutOfBounds);
            }
            const QString key = c.has(1) ? toText(c.arg(1)) : QString();
            if (!key.isEmpty() && itemOfKey(tree, key) >= 0)
                raise(ctlerr::keyNotUnique);
            const QString itemText = c.has(2) ? toText(c.arg(2)) : QString();
            if ((c.has(3) && !c.arg(3).isEmpty()) || (c.has(4) && !c.arg(4).isEmpty()))
                raise(ctlerr::noImageList);
            if (!c.has(0) && sorted(tree))
                at = sortedPosition(tree, itemText);
            QTreeWidgetItem* item = insertItem(tree, at, itemText);
            if (!key.isEmpty())
                item->setData(0, keyRole, key);
            return ObjectRef(std::make_shared<ListItem>(&tree, item));
        }
        if (c.named(u"Clear")) {
            tree.clear();
            return Variant();
        }
        if (c.named(u"Remove")) {
            delete tree.takeTopLevelItem(itemIndex(tree, c.arg(0)));
            return Variant();
        }
        raise(vberr::noSuchMember);
    }

private:
    QPointer<QTreeWidget> tree_;
};

// A column header, found by its serial wherever other columns have moved it.
class ColumnHeader final : public Object {
public:
    ColumnHeader(QTreeWidget* tree, int column) : tree_(tree) {
        QTreeWidgetItem* header = tree->headerItem();
        if (header->data(column, serialRole).toLongLong() == 0)
            header->setData(column, serialRole, nextSerial(*tree));
        serial_ = header->data(column, serialRole).toLongLong();
    }

    std::u16string typeName() const override { return u"ColumnHeader"; }

    Variant call(std::u16string_view name, CallKind kind, std::span<Variant> args) override {
        QTreeWidget& tree = alive(tree_);
        const int column = find(tree);
        if (column < 0)
            raise(ctlerr::disconnected);
        QTreeWidgetItem* header = tree.headerItem();
        const MemberCall c{name, kind, args};
        if (c.named(u"Text") || name.empty()) {
            if (c.writes())
                header->setText(column, toText(c.value()));
            return c.writes() ? Variant() : text(header->text(column));
        }
        if (c.named(u"Width")) {
            if (!c.writes())
                return tree.columnWidth(column) * twipsPerPixel;
            const std::int32_t pixels = pixelsOf(toInt(c.value()));
            if (pixels < 0)
                raise(ctlerr::invalidPropertyValue);
            tree.setColumnWidth(column, pixels);
            return Variant();
        }
        if (c.named(u"Alignment")) {
            if (c.writes())
                setColumnAlignment(tree, column, alignmentArgument(c.value()));
            return c.writes() ? Variant() : Variant(columnAlignment(tree, column));
        }
        if (c.named(u"Key")) {
            if (!c.writes())
                return text(header->data(column, keyRole).toString());
            const QString key = toText(c.value());
            const int owner = columnOfKey(tree, key);
            if (!key.isEmpty() && owner >= 0 && owner != column)
                raise(ctlerr::keyNotUnique);
            header->setData(column, keyRole, key);
            return Variant();
        }
        if (c.named(u"Tag")) {
            if (c.writes())
                header->setData(column, tagRole, toText(c.value()));
            return c.writes() ? Variant() : text(header->data(column, tagRole).toString());
        }
        if (c.named(u"Left")) {
            // From the first column's left edge, in the order the columns are shown.
            c.readOnly();
            return tree.header()->sectionPosition(column) * twipsPerPixel;
        }
        if (c.named(u"Index") || c.named(u"Position")) {
            c.readOnly();
            return column + 1;
        }
        if (c.named(u"SubItemIndex")) {
            c.readOnly();
            return column;
        }
        raise(vberr::noSuchMember);
    }

private:
    int find(const QTreeWidget& tree) const {
        for (int c = 0; c < tree.columnCount(); ++c)
            if (tree.headerItem()->data(c, serialRole).toLongLong() == serial_)
                return c;
        return -1;
    }

    QPointer<QTreeWidget> tree_;
    qlonglong serial_ = 0;
};

int columnIndex(QTreeWidget& tree, const Variant& which) {
    if (which.isString()) {
        const int found = columnOfKey(tree, toQString(which.string()));
        if (found < 0)
            raise(ctlerr::elementNotFound);
        return found;
    }
    const std::int32_t index = toInt(which);
    if (index < 1 || index > tree.columnCount())
        raise(ctlerr::indexOutOfBounds);
    return index - 1;
}

class ColumnHeaders final : public Object {
public:
    explicit ColumnHeaders(QTreeWidget* tree) : tree_(tree) {}

    std::u16string typeName() const override { return u"ColumnHeaders"; }

    Variant call(std::u16string_view name, CallKind kind, std::span<Variant> args) override {
        QTreeWidget& tree = alive(tree_);
        const MemberCall c{name, kind, args};
        if (c.named(u"Count")) {
            c.readOnly();
            return tree.columnCount();
        }
        if (c.named(u"Item") || name.empty()) {
            c.readOnly();
            return ObjectRef(std::make_shared<ColumnHeader>(&tree, columnIndex(tree, c.arg(0))));
        }
        if (c.named(u"Add")) {
            // Add(Index, Key, Text, Width, Alignment, Icon)
            int at = tree.columnCount();
            if (c.has(0)) {
                at = toInt(c.arg(0)) - 1;
                if (at < 0 || at > tree.columnCount())
                    raise(ctlerr::indexOutOfBounds);
            }
            const QString key = c.has(1) ? toText(c.arg(1)) : QString();
            if (!key.isEmpty() && columnOfKey(tree, key) >= 0)
                raise(ctlerr::keyNotUnique);
            const QString headerText = c.has(2) ? toText(c.arg(2)) : QString();
            const int width = c.has(3) ? pixelsOf(toInt(c.arg(3))) : defaultColumnWidth;
            if (width < 0)
                raise(ctlerr::invalidPropertyValue);
            const int alignment = c.has(4) ? alignmentArgument(c.arg(4)) : 0;
            insertColumn(tree, at);
            QTreeWidgetItem* header = tree.headerItem();
            header->setText(at, headerText);
            if (!key.isEmpty())
                header->setData(at, keyRole, key);
            header->setData(at, serialRole, nextSerial(tree));
            setColumnAlignment(tree, at, alignment);
            tree.setColumnWidth(at, width);
            return ObjectRef(std::make_shared<ColumnHeader>(&tree, at));
        }
        if (c.named(u"Clear")) {
            while (tree.columnCount() > 0)
                removeColumn(tree, tree.columnCount() - 1);
            return Variant();
        }
        if (c.named(u"Remove")) {
            removeColumn(tree, columnIndex(tree, c.arg(0)));
            return Variant();
        }
        raise(vberr::noSuchMember);
    }

private:
    QPointer<QTreeWidget> tree_;
};

class ListView final : public WidgetObject {
public:
    explicit ListView(QTreeWidget* tree) : WidgetObject(tree, u"ListView") {}

protected:
    std::optional<Variant> member(QWidget& w, const MemberCall& c) override {
        auto& tree = static_cast<QTreeWidget&>(w);
        if (c.named(u"ListItems")) {
            c.readOnly();
            return ObjectRef(std::make_shared<ListItems>(&tree));
        }
        if (c.named(u"ColumnHeaders")) {
            c.readOnly();
            return ObjectRef(std::make_shared<ColumnHeaders>(&tree));
        }
        if (c.named(u"Sorted")) {
            if (c.writes())
                setSorted(tree, toBool(c.value()));
            return c.writes() ? Variant() : Variant(sorted(tree));
        }
        if (c.named(u"SortKey")) {
            if (!c.writes())
                return static_cast<std::int16_t>(sortKey(tree));
            const std::int32_t key = toInt(c.value());
            if (key < 0)
                raise(ctlerr::invalidPropertyValue);
            setSortKey(tree, key);
            return Variant();
        }
        if (c.named(u"SortOrder")) {
            if (!c.writes())
                return static_cast<std::int32_t>(sortOrder(tree));
            const std::int32_t order = toInt(c.value());
            if (order != 0 && order != 1)
                raise(ctlerr::invalidPropertyValue);
            setSortOrder(tree, order);
            return Variant();
        }
        if (c.named(u"MultiSelect")) {
            if (c.writes())
                tree.setSelectionMode(toBool(c.value()) ? QAbstractItemView::ExtendedSelection
                                                        : QAbstractItemView::SingleSelection);
            return c.writes()
                       ? Variant()
                       : Variant(tree.selectionMode() == QAbstractItemView::ExtendedSelection ||
                                 tree.selectionMode() == QAbstractItemView::MultiSelection);
        }
        if (c.named(u"Checkboxes") || c.named(u"FullRowSelect")) {
            const std::uint32_t bit =
                c.named(u"Checkboxes") ? exstyle::checkBoxes : exstyle::fullRowSelect;
            const std::uint32_t style = extendedStyle(tree);
            if (!c.writes())
                return (style & bit) != 0;
            setExtendedStyle(tree, toBool(c.value()) ? style | bit : style & ~bit);
            return Variant();
        }
        if (c.named(u"Icons") || c.named(u"SmallIcons")) {
            // No image list can be attached: the list has none.
            if (c.writes())
                raise(ctlerr::invalidPropertyValue);
            return Variant::nothing();
        }
        if (c.named(u"SelectedItem")) {
            if (!c.writes()) {
                QTreeWidgetItem* current = tree.currentItem();
                const int index = current == nullptr ? -1 : tree.indexOfTopLevelItem(current);
                return index < 0 ? Variant::nothing() : Variant(listItem(tree, index));
            }
            const Variant& value = c.value();
            if (value.isObject() && !value.object()) {
                tree.setCurrentItem(nullptr);
                return Variant();
            }
            const auto* chosen = dynamic_cast<const ListItem*>(&toObject(value));
            if (chosen == nullptr || chosen->tree() != &tree || chosen->item() == nullptr)
                raise(ctlerr::invalidPropertyValue);
            if (tree.selectionMode() != QAbstractItemView::ExtendedSelection &&
                tree.selectionMode() != QAbstractItemView::MultiSelection)
                tree.clearSelection();
            tree.setCurrentItem(chosen->item(), 0, QItemSelectionModel::NoUpdate);
            chosen->item()->setSelected(true);
            return Variant();
        }
        if (c.named(u"HitTest")) {
            // x and y in twips from the control's corner, as its mouse events give them; the
            // items start below the header.
            const QPoint at(pixelsOf(toInt(c.arg(0))), pixelsOf(toInt(c.arg(1))));
            QTreeWidgetItem* hit = tree.itemAt(tree.viewport()->mapFrom(&tree, at));
            const int index = hit == nullptr ? -1 : tree.indexOfTopLevelItem(hit);
            return index < 0 ? Variant::nothing() : Variant(listItem(tree, index));
        }
        return std::nullopt;
    }
};

} // namespace

ObjectRef wrapListView(QTreeWidget* tree) {
    return std::make_shared<ListView>(tree);
}

} // namespace velkor6::qt
