// VB's Collection: an ordered, 1-based list of Variants with optional text keys, reachable by name
// (Count, Item, Add, Remove) like any other object a Variant holds.
#pragma once

#include "velkor6/variant.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace velkor6 {

class Collection final : public Object {
public:
    std::u16string typeName() const override { return u"Collection"; }
    // Count, Item (also the default member ""), Add (Item, Key, Before, After) and Remove; an
    // omitted optional argument is absent or Missing.
    Variant call(std::u16string_view name, CallKind kind, std::span<Variant> args) override;

    std::int32_t count() const { return static_cast<std::int32_t>(entries_.size()); }
    // `index` is a 1-based position (any number; error 9 out of range) or a key (case-insensitive
    // text; error 5 when no item has it).
    const Variant& item(const Variant& index) const;
    // Appends, or inserts before or after the item `before` / `after` names (not both: error 5).
    // A key must be text (error 13) that no other item has (error 457).
    void add(Variant value, const Variant& key = Variant::missing(),
             const Variant& before = Variant::missing(), const Variant& after = Variant::missing());
    void remove(const Variant& index);
    void clear();

private:
    struct Entry {
        Variant value;
        std::optional<std::u16string> key; // folded for comparison
    };

    std::size_t positionOf(const Variant& index) const; // 0-based
    void shiftKeys(std::size_t from, std::ptrdiff_t by);

    std::vector<Entry> entries_;
    std::unordered_map<std::u16string, std::size_t> keys_; // folded key -> 0-based position
};

} // namespace velkor6
