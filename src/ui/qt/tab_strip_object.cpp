// QTabBar and QTabWidget as a TabStrip.
#include "ui/qt/widget_object.h"

#include <QTabBar>
#include <QTabWidget>
#include <QVariantMap>

namespace velkor6::qt {
namespace {

constexpr char serialProperty[] = "_velkor6_nextserial";
constexpr char ownPageProperty[] = "_velkor6_page";
constexpr QLatin1String keyField("key");
constexpr QLatin1String tagField("tag");
constexpr QLatin1String serialField("serial");

// The strip a QTabWidget or a QTabBar is; the pages, if any, belong to the QTabWidget.
struct Strip {
    QTabBar* bar = nullptr;
    QTabWidget* pages = nullptr;
};

Strip stripOf(QWidget* w) {
    if (auto* tabs = qobject_cast<QTabWidget*>(w))
        return {tabs->tabBar(), tabs};
    return {qobject_cast<QTabBar*>(w), nullptr};
}

QVariantMap fieldsOf(const QTabBar& bar, int index) {
    return bar.tabData(index).toMap();
}

void setField(QTabBar& bar, int index, const QString& field, const QVariant& value) {
    QVariantMap fields = fieldsOf(bar, index);
    fields.insert(field, value);
    bar.setTabData(index, fields);
}

qlonglong serialOf(QTabBar& bar, int index) {
    qlonglong serial = fieldsOf(bar, index).value(serialField).toLongLong();
    if (serial == 0) {
        serial = bar.property(serialProperty).toLongLong() + 1;
        bar.setProperty(serialProperty, serial);
        setField(bar, index, serialField, serial);
    }
    return serial;
}

int tabOfKey(const QTabBar& bar, const QString& key) {
    for (int i = 0; i < bar.count(); ++i) {
        const QVariant k = fieldsOf(bar, i).value(keyField);
        if (k.isValid() && k.toString().compare(key, Qt::CaseInsensitive) == 0)
            return i;
    }
    return -1;
}

void removeTab(const Strip& strip, int index) {
    if (strip.pages == nullptr) {
        strip.bar->removeTab(index);
        return;
    }
    QWidget* page = strip.pages->widget(index);
    strip.pages->removeTab(index);
    // Pages of ours go with their tab; the program's own stay its own.
    if (page != nullptr && page->property(ownPageProperty).toBool())
        delete page;
}

class Tab final : public Object {
public:
    Tab(QWidget* owner, int index) : owner_(owner) {
        serial_ = serialOf(*stripOf(owner).bar, index);
    }

    std::u16string typeName() const override { return u"Tab"; }

    // Where the tab is now; -1 once it has gone.
    int index() const {
        if (owner_.isNull())
            return -1;
        const Strip strip = stripOf(owner_.data());
        for (int i = 0; i < strip.bar->count(); ++i)
            if (fieldsOf(*strip.bar, i).value(serialField).toLongLong() == serial_)
                return i;
        return -1;
    }
    const QWidget* owner() const { return owner_.data(); }

    Variant call(std::u16string_view name, CallKind kind, std::span<Variant> args) override {
        const int i = index();
        if (i < 0)
            raise(ctlerr::disconnected);
        QTabBar& bar = *stripOf(owner_.data()).bar;
        const MemberCall c{name, kind, args};
        if (c.named(u"Caption") || name.empty()) {
            if (c.writes())
                bar.setTabText(i, toText(c.value()));
            return c.writes() ? Variant() : text(bar.tabText(i));
        }
        if (c.named(u"Index")) {
            c.readOnly();
            return static_cast<std::int32_t>(i + 1);
        }
        if (c.named(u"Key")) {
            if (!c.writes())
                return text(fieldsOf(bar, i).value(keyField).toString());
            const QString key = toText(c.value());
            const int owner = tabOfKey(bar, key);
            if (!key.isEmpty() && owner >= 0 && owner != i)
                raise(ctlerr::keyNotUnique);
            setField(bar, i, keyField, key);
            return Variant();
        }
        if (c.named(u"Tag")) {
            if (c.writes())
                setField(bar, i, tagField, toText(c.value()));
            return c.writes() ? Variant() : text(fieldsOf(bar, i).value(tagField).toString());
        }
        if (c.named(u"ToolTipText")) {
            if (c.writes())
                bar.setTabToolTip(i, toText(c.value()));
            return c.writes() ? Variant() : text(bar.tabToolTip(i));
        }
        if (c.named(u"Selected")) {
            if (c.writes() && toBool(c.value()))
                bar.setCurrentIndex(i);
            return c.writes() ? Variant() : Variant(bar.currentIndex() == i);
        }
        raise(vberr::noSuchMember);
    }

private:
    QPointer<QWidget> owner_;
    qlonglong serial_ = 0;
};

int tabIndex(const QTabBar& bar, const Variant& which) {
    if (which.isString()) {
        const int found = tabOfKey(bar, toQString(which.string()));
        if (found < 0)
            raise(ctlerr::elementNotFound);
        return found;
    }
    const std::int32_t index = toInt(which);
    if (index < 1 || index > bar.count())
        raise(ctlerr::indexOutOfBounds);
    return index - 1;
}

class Tabs final : public Object {
public:
    explicit Tabs(QWidget* owner) : owner_(owner) {}

    std::u16string typeName() const override { return u"Tabs"; }

    Variant call(std::u16string_view name, CallKind kind, std::span<Variant> args) override {
        if (owner_.isNull())
            raise(ctlerr::disconnected);
        const Strip strip = stripOf(owner_.data());
        QTabBar& bar = *strip.bar;
        const MemberCall c{name, kind, args};
        if (c.named(u"Count")) {
            c.readOnly();
            return static_cast<std::int32_t>(bar.count());
        }
        if (c.named(u"Item") || name.empty()) {
            c.readOnly();
            return ObjectRef(std::make_shared<Tab>(owner_.data(), tabIndex(bar, c.arg(0))));
        }
        if (c.named(u"Add")) {
            // Add(Index, Key, Caption, Image)
            int at = bar.count();
            if (c.has(0)) {
                at = toInt(c.arg(0)) - 1;
                if (at < 0 || at > bar.count())
                    raise(ctlerr::indexOutOfBounds);
            }
            const QString key = c.has(1) ? toText(c.arg(1)) : QString();
            if (!key.isEmpty() && tabOfKey(bar, key) >= 0)
                raise(ctlerr::keyNotUnique);
            const QString caption = c.has(2) ? toText(c.arg(2)) : QString();
            if (strip.pages != nullptr) {
                auto* page = new QWidget;
                page->setProperty(ownPageProperty, true);
                strip.pages->insertTab(at, page, caption);
            } else {
                bar.insertTab(at, caption);
            }
            if (!key.isEmpty())
                setField(bar, at, keyField, key);
            return ObjectRef(std::make_shared<Tab>(owner_.data(), at));
        }
        if (c.named(u"Clear")) {
            while (bar.count() > 0)
                removeTab(strip, bar.count() - 1);
            return Variant();
        }
        if (c.named(u"Remove")) {
            removeTab(strip, tabIndex(bar, c.arg(0)));
            return Variant();
        }
        raise(vberr::noSuchMember);
    }

private:
    QPointer<QWidget> owner_;
};

class TabStrip final : public WidgetObject {
public:
    explicit TabStrip(QWidget* owner) : WidgetObject(owner, u"TabStrip") {}

protected:
    std::optional<Variant> member(QWidget& w, const MemberCall& c) override {
        QTabBar& bar = *stripOf(&w).bar;
        if (c.named(u"Tabs")) {
            c.readOnly();
            return ObjectRef(std::make_shared<Tabs>(&w));
        }
        if (c.named(u"SelectedItem")) {
            if (!c.writes())
                return bar.currentIndex() < 0
                           ? Variant::nothing()
                           : Variant(ObjectRef(std::make_shared<Tab>(&w, bar.currentIndex())));
            const auto* chosen = dynamic_cast<const Tab*>(&toObject(c.value()));
            if (chosen == nullptr || chosen->owner() != &w || chosen->index() < 0)
                raise(ctlerr::invalidPropertyValue);
            bar.setCurrentIndex(chosen->index());
            return Variant();
        }
        return std::nullopt;
    }
};

} // namespace

ObjectRef wrapTabStrip(QWidget* tabs) {
    return std::make_shared<TabStrip>(tabs);
}

} // namespace velkor6::qt
