// A list box (or combo box) and a tab strip of the caller's, as the library reaches them by name.
#pragma once

#include "core/convert.h"
#include "velkor6/variant.h"
#include "velkor6/vb_error.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace velkor6::fake {

// Clear, AddItem, NewIndex, ListCount, ListIndex, ItemData(i) and Selected(i); a sorted list
// puts each new entry in its place. An index out of range raises 381, as VB's lists do.
class FakeListBox final : public Object {
public:
    struct Entry {
        std::u16string text;
        std::int32_t itemData = 0;
        bool selected = false;
        friend bool operator==(const Entry&, const Entry&) = default;
    };

    explicit FakeListBox(bool sorted = false) : sorted_(sorted) {}

    std::u16string typeName() const override { return u"ListBox"; }
    Variant call(std::u16string_view name, CallKind kind, std::span<Variant> args) override {
        const Locale loc = Locale::englishUS();
        if (name == u"Clear") {
            entries.clear();
            newIndex_ = -1;
            listIndex = -1;
            return {};
        }
        if (name == u"AddItem") {
            if (failAfter == 0)
                throw VbError(vberr::outOfMemory);
            --failAfter;
            Entry entry{toString(args[0], loc)};
            auto at = entries.end();
            if (sorted_)
                at = std::ranges::upper_bound(entries, entry.text, {}, &Entry::text);
            newIndex_ = static_cast<std::int32_t>(at - entries.begin());
            entries.insert(at, std::move(entry));
            return {};
        }
        if (name == u"NewIndex")
            return newIndex_;
        if (name == u"ItemData" && kind == CallKind::PropertyLet) {
            entry(args[0]).itemData = toLong(args[1], loc);
            return {};
        }
        if (name == u"ItemData")
            return entry(args[0]).itemData;
        if (name == u"Selected" && kind == CallKind::PropertyLet) {
            entry(args[0]).selected = toBoolean(args[1], loc);
            return {};
        }
        if (name == u"Selected")
            return entry(args[0]).selected;
        if (name == u"ListCount")
            return static_cast<std::int32_t>(entries.size());
        if (name == u"ListIndex" && kind == CallKind::PropertyLet) {
            listIndex = toLong(args[0], loc);
            return {};
        }
        if (name == u"ListIndex")
            return listIndex;
        throw VbError(vberr::noSuchMember);
    }

    std::vector<Entry> entries;
    int failAfter = -1; // AddItem fails after this many entries; -1 never
    std::int32_t listIndex = -1;

private:
    Entry& entry(const Variant& index) {
        const std::int32_t i = toLong(index, Locale::englishUS());
        if (i < 0 || i >= static_cast<std::int32_t>(entries.size()))
            throw VbError(invalidPropertyArrayIndex);
        return entries[static_cast<std::size_t>(i)];
    }
    static constexpr std::int32_t invalidPropertyArrayIndex = 381;

    bool sorted_;
    std::int32_t newIndex_ = -1;
};

// Its Tabs collection answers Clear and Add(Index, Key, Caption).
class FakeTabStrip final : public Object {
public:
    struct Tabs final : Object {
        std::u16string typeName() const override { return u"Tabs"; }
        Variant call(std::u16string_view name, CallKind, std::span<Variant> args) override {
            if (name == u"Clear") {
                captions.clear();
                return {};
            }
            if (name == u"Add") {
                if (args.size() < 3 || !args[0].isMissing() || !args[1].isMissing())
                    throw VbError(vberr::invalidCall);
                captions.push_back(args[2].string());
                return {};
            }
            throw VbError(vberr::noSuchMember);
        }
        std::vector<std::u16string> captions;
    };

    std::u16string typeName() const override { return u"TabStrip"; }
    Variant call(std::u16string_view name, CallKind, std::span<Variant>) override {
        if (name == u"Tabs")
            return ObjectRef(tabs);
        throw VbError(vberr::noSuchMember);
    }

    std::shared_ptr<Tabs> tabs = std::make_shared<Tabs>();
};

} // namespace velkor6::fake
