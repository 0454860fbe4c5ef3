// QListWidget as a ListBox and QComboBox as a ComboBox.
#include "ui/qt/widget_object.h"

#include <QComboBox>
#include <QListWidget>

namespace velkor6::qt {
namespace {

constexpr char newIndexProperty[] = "_velkor6_newindex";

// The members both share, over what differs between the two widgets.
class ListControl : public WidgetObject {
public:
    using WidgetObject::WidgetObject;

protected:
    virtual int count(QWidget& w) const = 0;
    virtual int current(QWidget& w) const = 0;
    virtual void setCurrent(QWidget& w, int index) const = 0;
    virtual QString itemText(QWidget& w, int index) const = 0;
    virtual void setItemText(QWidget& w, int index, const QString& s) const = 0;
    virtual QVariant data(QWidget& w, int index) const = 0;
    virtual void setData(QWidget& w, int index, int value) const = 0;
    // Adds at index (count appends) and answers where the entry went.
    virtual int add(QWidget& w, int index, const QString& s) const = 0;
    virtual void remove(QWidget& w, int index) const = 0;
    virtual void clear(QWidget& w) const = 0;

    std::optional<Variant> member(QWidget& w, const MemberCall& c) override {
        if (c.named(u"AddItem")) {
            int at = count(w);
            if (c.has(1)) {
                at = toInt(c.arg(1));
                if (at < 0 || at > count(w))
                    raise(vberr::invalidCall);
            }
            w.setProperty(newIndexProperty, add(w, at, toText(c.arg(0))));
            return Variant();
        }
        if (c.named(u"RemoveItem")) {
            const std::int32_t index = toInt(c.arg(0));
            if (index < 0 || index >= count(w))
                raise(vberr::invalidCall);
            remove(w, index);
            return Variant();
        }
        if (c.named(u"Clear")) {
            clear(w);
            return Variant();
        }
        if (c.named(u"ListCount")) {
            c.readOnly();
            return count(w);
        }
        if (c.named(u"ListIndex")) {
            if (!c.writes())
                return current(w);
            const std::int32_t index = toInt(c.value());
            if (index < -1 || index >= count(w))
                raise(ctlerr::invalidPropertyValue);
            setCurrent(w, index);
            return Variant();
        }
        if (c.named(u"NewIndex")) {
            c.readOnly();
            const QVariant index = w.property(newIndexProperty);
            return index.isValid() ? index.toInt() : -1;
        }
        if (c.named(u"ItemData")) {
            const int index = checked(w, c.arg(0));
            if (c.writes())
                setData(w, index, toInt(c.value()));
            return c.writes() ? Variant() : Variant(data(w, index).toInt());
        }
        if (c.named(u"List")) {
            const std::int32_t index = toInt(c.arg(0));
            // Reading past the end gives "", as VB's lists do; writing there is an error.
            if (!c.writes())
                return index >= 0 && index < count(w) ? text(itemText(w, index)) : text({});
            setItemText(w, checked(w, c.arg(0)), toText(c.value()));
            return Variant();
        }
        return std::nullopt;
    }

    int checked(QWidget& w, const Variant& index) const {
        const std::int32_t i = toInt(index);
        if (i < 0 || i >= count(w))
            raise(ctlerr::invalidArrayIndex);
        return i;
    }
};

class ListBox final : public ListControl {
public:
    explicit ListBox(QListWidget* list) : ListControl(list, u"ListBox") {}

protected:
    static QListWidget& list(QWidget& w) { return static_cast<QListWidget&>(w); }

    int count(QWidget& w) const override { return list(w).count(); }
    int current(QWidget& w) const override { return list(w).currentRow(); }
    void setCurrent(QWidget& w, int index) const override {
        if (index < 0) {
            list(w).setCurrentRow(-1, QItemSelectionModel::Clear);
            list(w).clearSelection();
        } else {
            list(w).setCurrentRow(index);
        }
    }
    QString itemText(QWidget& w, int index) const override { return list(w).item(index)->text(); }
    void setItemText(QWidget& w, int index, const QString& s) const override {
        list(w).item(index)->setText(s);
    }
    QVariant data(QWidget& w, int index) const override {
        return list(w).item(index)->data(Qt::UserRole);
    }
    void setData(QWidget& w, int index, int value) const override {
        list(w).item(index)->setData(Qt::UserRole, value);
    }
    int add(QWidget& w, int index, const QString& s) const override {
        auto* item = new QListWidgetItem(s);
        // A sorting list puts the entry in its place itself.
        list(w).insertItem(index, item);
        return list(w).row(item);
    }
    void remove(QWidget& w, int index) const override { delete list(w).takeItem(index); }
    void clear(QWidget& w) const override { list(w).clear(); }

    std::optional<Variant> member(QWidget& w, const MemberCall& c) override {
        QListWidget& l = list(w);
        if (c.named(u"Selected")) {
            const int index = checked(w, c.arg(0));
            if (!c.writes())
                return l.item(index)->isSelected();
            const bool on = toBool(c.value());
            if (on && l.selectionMode() == QAbstractItemView::SingleSelection)
                l.setCurrentRow(index);
            else
                l.item(index)->setSelected(on);
            return Variant();
        }
        if (c.named(u"SelCount")) {
            c.readOnly();
            return static_cast<std::int32_t>(l.selectedItems().size());
        }
        if (c.named(u"MultiSelect")) {
            // 0 one entry, 1 each click toggles, 2 Shift and Ctrl extend.
            if (!c.writes())
                return static_cast<std::int16_t>(
                    l.selectionMode() == QAbstractItemView::MultiSelection      ? 1
                    : l.selectionMode() == QAbstractItemView::ExtendedSelection ? 2
                                                                                : 0);
            const std::int32_t mode = toInt(c.value());
            if (mode < 0 || mode > 2)
                raise(ctlerr::invalidPropertyValue);
            l.setSelectionMode(mode == 1   ? QAbstractItemView::MultiSelection
                               : mode == 2 ? QAbstractItemView::ExtendedSelection
                                           : QAbstractItemView::SingleSelection);
            return Variant();
        }
        if (c.named(u"Sorted")) {
            if (c.writes())
                l.setSortingEnabled(toBool(c.value()));
            return c.writes() ? Variant() : Variant(l.isSortingEnabled());
        }
        if (c.named(u"Text")) {
            if (!c.writes())
                return text(l.currentItem() == nullptr ? QString() : l.currentItem()->text());
            const QList<QListWidgetItem*> found =
                l.findItems(toText(c.value()), Qt::MatchFixedString);
            if (!found.isEmpty())
                l.setCurrentItem(found.front());
            return Variant();
        }
        return ListControl::member(w, c);
    }
};

class ComboBox final : public ListControl {
public:
    explicit ComboBox(QComboBox* combo) : ListControl(combo, u"ComboBox") {}

protected:
    static QComboBox& combo(QWidget& w) { return static_cast<QComboBox&>(w); }

    int count(QWidget& w) const override { return combo(w).count(); }
    int current(QWidget& w) const override { return combo(w).currentIndex(); }
    void setCurrent(QWidget& w, int index) const override { combo(w).setCurrentIndex(index); }
    QString itemText(QWidget& w, int index) const override { return combo(w).itemText(index); }
    void setItemText(QWidget& w, int index, const QString& s) const override {
        combo(w).setItemText(index, s);
    }
    QVariant data(QWidget& w, int index) const override {
        return combo(w).itemData(index, Qt::UserRole);
    }
    void setData(QWidget& w, int index, int value) const override {
        combo(w).setItemData(index, value, Qt::UserRole);
    }
    int add(QWidget& w, int index, const QString& s) const override {
        combo(w).insertItem(index, s);
        return index;
    }
    void remove(QWidget& w, int index) const override { combo(w).removeItem(index); }
    void clear(QWidget& w) const override { combo(w).clear(); }

    std::optional<Variant> member(QWidget& w, const MemberCall& c) override {
        QComboBox& box = combo(w);
        if (c.named(u"Text")) {
            if (!c.writes())
                return text(box.currentText());
            const QString s = toText(c.value());
            if (box.isEditable()) {
                box.setEditText(s);
            } else {
                const int found = box.findText(s, Qt::MatchFixedString);
                if (found >= 0)
                    box.setCurrentIndex(found);
            }
            return Variant();
        }
        return ListControl::member(w, c);
    }
};

} // namespace

ObjectRef wrapListBox(QListWidget* list) {
    return std::make_shared<ListBox>(list);
}

ObjectRef wrapComboBox(QComboBox* combo) {
    return std::make_shared<ComboBox>(combo);
}

} // namespace velkor6::qt
