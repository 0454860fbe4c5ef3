#include "fake/fake_list_view.h"

#include "core/convert.h"
#include "core/text.h"
#include "velkor6/vb_error.h"

#include <algorithm>
#include <cmath>

namespace velkor6::fake {
namespace {

constexpr std::int32_t twipsPerPixel = 15;
constexpr std::int32_t defaultColumnWidth = 1440; // twips

const Locale& loc() {
    static const Locale l = Locale::englishUS();
    return l;
}

bool given(std::span<Variant> args, std::size_t i) {
    return i < args.size() && !args[i].isMissing();
}

std::size_t position(const Variant& index, std::size_t count) {
    const std::int32_t i = toLong(index, loc());
    if (i < 1 || static_cast<std::size_t>(i) > count)
        throw VbError(vberr::subscriptOutOfRange);
    return static_cast<std::size_t>(i - 1);
}

} // namespace

class FakeListView::ListItem final : public Object {
public:
    ListItem(std::shared_ptr<FakeListView> owner, std::int32_t id)
        : owner_(std::move(owner)), id_(id) {}
    std::u16string typeName() const override { return u"ListItem"; }

    Variant call(std::u16string_view name, CallKind kind, std::span<Variant> args) override {
        if (!owner_->failOn.empty() && name == owner_->failOn)
            throw VbError(vberr::invalidCall);
        FakeListViewWindow::Item& item = self();
        const bool let = kind == CallKind::PropertyLet;
        if (name == u"Text" || name.empty()) {
            if (let)
                item.cells[0] = toString(args.back(), loc());
            return item.cells[0];
        }
        if (name == u"SubItems") {
            const std::int32_t i = toLong(args[0], loc());
            if (i < 1 || static_cast<std::size_t>(i) >=
                             std::max<std::size_t>(owner_->window->columns.size(), 1))
                throw VbError(380, u"Invalid property value");
            if (static_cast<std::size_t>(i) >= item.cells.size())
                item.cells.resize(static_cast<std::size_t>(i) + 1);
            if (let)
                item.cells[static_cast<std::size_t>(i)] = toString(args.back(), loc());
            return item.cells[static_cast<std::size_t>(i)];
        }
        if (name == u"Selected")
            return bit(item, lvis::selected, let, args);
        if (name == u"Checked") {
            if (let)
                item.state = (item.state & ~lvis::stateImageMask) |
                             (toBoolean(args.back(), loc()) ? lvis::checked : lvis::unchecked);
            return (item.state & lvis::stateImageMask) == lvis::checked;
        }
        if (name == u"Index")
            return owner_->window->position(id_) + 1;
        if (name == u"EnsureVisible") {
            owner_->ensuredVisible = id_;
            return true;
        }
        if (name == u"Icon" || name == u"SmallIcon") {
            Variant& icon = name == u"Icon" ? item.icon : item.smallIcon;
            if (let)
                icon = args.back();
            return icon;
        }
        throw VbError(vberr::noSuchMember);
    }

private:
    FakeListViewWindow::Item& self() {
        const std::int32_t at = owner_->window->position(id_);
        if (at < 0)
            throw VbError(35605, u"Control has been removed");
        return owner_->window->items[static_cast<std::size_t>(at)];
    }

    static Variant bit(FakeListViewWindow::Item& item, std::uint32_t mask, bool let,
                       std::span<Variant> args) {
        if (let) {
            if (toBoolean(args.back(), loc()))
                item.state |= mask;
            else
                item.state &= ~mask;
        }
        return (item.state & mask) != 0;
    }

    std::shared_ptr<FakeListView> owner_;
    std::int32_t id_;
};

class FakeListView::Items final : public Object {
public:
    explicit Items(std::shared_ptr<FakeListView> owner) : owner_(std::move(owner)) {}
    std::u16string typeName() const override { return u"ListItems"; }

    Variant call(std::u16string_view name, CallKind, std::span<Variant> args) override {
        FakeListViewWindow& w = *owner_->window;
        if (name == u"Count")
            return static_cast<std::int32_t>(w.items.size());
        if (name == u"Clear") {
            w.items.clear();
            return {};
        }
        if (name == u"Add") {
            std::vector<std::u16string> cells{given(args, 2) ? toString(args[2], loc()) : u""};
            const std::int32_t id = w.addItem(std::move(cells));
            if (given(args, 3))
                w.items.back().icon = args[3];
            if (given(args, 4))
                w.items.back().smallIcon = args[4];
            owner_->resort();
            return ObjectRef(std::make_shared<ListItem>(owner_, id));
        }
        if (name == u"Item" || name.empty())
            return owner_->item(position(args[0], w.items.size()));
        throw VbError(vberr::noSuchMember);
    }

private:
    std::shared_ptr<FakeListView> owner_;
};

class FakeListView::Header final : public Object {
public:
    Header(std::shared_ptr<FakeListView> owner, std::size_t index)
        : owner_(std::move(owner)), index_(index) {}
    std::u16string typeName() const override { return u"ColumnHeader"; }

    Variant call(std::u16string_view name, CallKind kind, std::span<Variant> args) override {
        FakeListViewWindow::Column& c = owner_->window->columns.at(index_);
        const bool let = kind == CallKind::PropertyLet;
        if (name == u"Text" || name.empty()) {
            if (let)
                c.text = toString(args.back(), loc());
            return c.text;
        }
        if (name == u"Width") {
            if (let)
                c.width = toLong(args.back(), loc()) / twipsPerPixel;
            return static_cast<float>(c.width * twipsPerPixel);
        }
        if (name == u"Alignment")
            return c.alignment;
        if (name == u"Key")
            return c.key;
        if (name == u"Index")
            return static_cast<std::int32_t>(index_ + 1);
        throw VbError(vberr::noSuchMember);
    }

private:
    std::shared_ptr<FakeListView> owner_;
    std::size_t index_;
};

class FakeListView::Headers final : public Object {
public:
    explicit Headers(std::shared_ptr<FakeListView> owner) : owner_(std::move(owner)) {}
    std::u16string typeName() const override { return u"ColumnHeaders"; }

    // Add(Index, Key, Text, Width, Alignment), as the control takes them.
    Variant call(std::u16string_view name, CallKind, std::span<Variant> args) override {
        auto& columns = owner_->window->columns;
        if (name == u"Count")
            return static_cast<std::int32_t>(columns.size());
        if (name == u"Clear") {
            columns.clear();
            return {};
        }
        if (name == u"Add") {
            FakeListViewWindow::Column c;
            std::size_t at = columns.size();
            if (given(args, 0)) {
                const std::int32_t index = toLong(args[0], loc());
                if (index < 1 || static_cast<std::size_t>(index) > columns.size() + 1)
                    throw VbError(35600, u"Index out of bounds");
                at = static_cast<std::size_t>(index - 1);
            }
            if (given(args, 1)) {
                c.key = toString(args[1], loc());
                for (const auto& other : columns) {
                    if (!c.key.empty() && upperCase(other.key) == upperCase(c.key))
                        throw VbError(35602, u"Key is not unique in collection");
                }
            }
            if (given(args, 2))
                c.text = toString(args[2], loc());
            c.width =
                (given(args, 3) ? static_cast<std::int32_t>(std::lround(toSingle(args[3], loc())))
                                : defaultColumnWidth) /
                twipsPerPixel;
            if (given(args, 4))
                c.alignment = toInteger(args[4], loc());
            columns.insert(columns.begin() + static_cast<std::ptrdiff_t>(at), c);
            return ObjectRef(std::make_shared<Header>(owner_, at));
        }
        if (name == u"Item" || name.empty())
            return ObjectRef(std::make_shared<Header>(owner_, position(args[0], columns.size())));
        throw VbError(vberr::noSuchMember);
    }

private:
    std::shared_ptr<FakeListView> owner_;
};

FakeListView::FakeListView(std::shared_ptr<FakeListViewWindow> w, WindowHandle handle)
    : window(std::move(w)), hwnd(handle) {}

void FakeListView::add(std::vector<std::u16string> cells) {
    window->addItem(std::move(cells));
    resort();
}

ObjectRef FakeListView::item(std::size_t position) {
    return std::make_shared<ListItem>(shared_from_this(), window->items.at(position).id);
}

void FakeListView::resort() {
    if (!sorted)
        return;
    const auto key = [this](const FakeListViewWindow::Item& i) {
        const auto k = static_cast<std::size_t>(sortKey);
        return upperCase(k < i.cells.size() ? i.cells[k] : std::u16string());
    };
    std::stable_sort(window->items.begin(), window->items.end(), [&](const auto& a, const auto& b) {
        return sortOrder == 1 ? key(b) < key(a) : key(a) < key(b);
    });
}

Variant FakeListView::call(std::u16string_view name, CallKind kind, std::span<Variant> args) {
    if (!failOn.empty() && name == failOn)
        throw VbError(vberr::invalidCall);
    const bool let = kind == CallKind::PropertyLet;
    if (name == u"hwnd")
        return hwnd;
    if (name == u"ListItems")
        return ObjectRef(std::make_shared<Items>(shared_from_this()));
    if (name == u"ColumnHeaders")
        return ObjectRef(std::make_shared<Headers>(shared_from_this()));
    if (name == u"Sorted" || name == u"SortKey" || name == u"SortOrder") {
        if (let) {
            if (name == u"Sorted")
                sorted = toBoolean(args.back(), loc());
            else if (name == u"SortKey")
                sortKey = toInteger(args.back(), loc());
            else
                sortOrder = toInteger(args.back(), loc());
            resort();
            return {};
        }
        if (name == u"Sorted")
            return sorted;
        return name == u"SortKey" ? sortKey : sortOrder;
    }
    if (name == u"MultiSelect") {
        if (let)
            multiSelect = toBoolean(args.back(), loc());
        return multiSelect;
    }
    if (name == u"SelectedItem") {
        if (let) {
            // The control focuses and selects the item it is given.
            const Variant& v = args.back();
            const std::int32_t id =
                v.isObject() && v.object()
                    ? toLong(v.object()->call(u"Index", CallKind::PropertyGet, {}), loc())
                    : 0;
            for (auto& i : window->items)
                i.state &= ~1u;
            if (id > 0)
                window->items.at(static_cast<std::size_t>(id - 1)).state |= 1u | lvis::selected;
            return {};
        }
        for (std::size_t i = 0; i < window->items.size(); ++i) {
            if ((window->items[i].state & 1u) != 0)
                return item(i);
        }
        return Variant::nothing();
    }
    if (name == u"HitTest") {
        const double y = toDouble(args[1], loc());
        const double row = std::floor(y / rowHeight);
        if (y < 0 || row >= static_cast<double>(window->items.size()))
            return Variant::nothing();
        return item(static_cast<std::size_t>(row));
    }
    if (name == u"Parent")
        return Variant(parent);
    if (name == u"MousePointer") {
        if (let)
            mousePointers.push_back(toInteger(args.back(), loc()));
        return mousePointers.empty() ? std::int16_t{0} : mousePointers.back();
    }
    if (name == u"Icons" || name == u"SmallIcons") {
        Variant& images = name == u"Icons" ? icons : smallIcons;
        if (let)
            images = args.back();
        return images;
    }
    throw VbError(vberr::noSuchMember);
}

std::shared_ptr<FakeListView> addListView(FakeWindowManager& windows, WindowHandle hwnd) {
    auto window = std::make_shared<FakeListViewWindow>();
    windows.addControlWindow(hwnd, window);
    return std::make_shared<FakeListView>(window, hwnd);
}

} // namespace velkor6::fake
