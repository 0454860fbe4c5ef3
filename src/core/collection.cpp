#include "core/collection.h"

#include "core/convert.h"
#include "core/text.h"
#include "velkor6/vb_error.h"

namespace velkor6 {
namespace {

bool given(const Variant& v) {
    return !v.isMissing();
}

const Variant& argument(std::span<Variant> args, std::size_t i) {
    static const Variant missing = Variant::missing();
    return i < args.size() ? args[i] : missing;
}

std::u16string foldedKey(const Variant& key) {
    if (!key.isString())
        throw VbError(vberr::typeMismatch);
    std::u16string folded;
    folded.reserve(key.string().size());
    for (char16_t c : key.string())
        folded.push_back(foldCase(c));
    return folded;
}

bool isPosition(const Variant& v) {
    return v.isNumber() || v.type() == VarType::Boolean || v.type() == VarType::Date;
}

} // namespace

std::size_t Collection::positionOf(const Variant& index) const {
    if (index.isString()) {
        const auto it = keys_.find(foldedKey(index));
        if (it == keys_.end())
            throw VbError(vberr::invalidCall);
        return it->second;
    }
    if (!isPosition(index))
        throw VbError(index.isMissing() ? vberr::argumentNotOptional : vberr::typeMismatch);
    const std::int32_t position = toLong(index, Locale::englishUS());
    if (position < 1 || position > count())
        throw VbError(vberr::subscriptOutOfRange);
    return static_cast<std::size_t>(position - 1);
}

void Collection::shiftKeys(std::size_t from, std::ptrdiff_t by) {
    for (auto& [key, position] : keys_) {
        if (position >= from)
            position = static_cast<std::size_t>(static_cast<std::ptrdiff_t>(position) + by);
    }
}

const Variant& Collection::item(const Variant& index) const {
    return entries_[positionOf(index)].value;
}

void Collection::add(Variant value, const Variant& key, const Variant& before,
                     const Variant& after) {
    if (given(before) && given(after))
        throw VbError(vberr::invalidCall);
    std::optional<std::u16string> folded;
    if (given(key)) {
        folded = foldedKey(key);
        if (keys_.contains(*folded))
            throw VbError(vberr::duplicateKey);
    }
    std::size_t at = entries_.size();
    if (given(before))
        at = positionOf(before);
    else if (given(after))
        at = positionOf(after) + 1;

    if (at < entries_.size())
        shiftKeys(at, 1);
    entries_.insert(entries_.begin() + static_cast<std::ptrdiff_t>(at),
                    Entry{std::move(value), folded});
    if (folded)
        keys_.emplace(std::move(*folded), at);
}

void Collection::remove(const Variant& index) {
    const std::size_t at = positionOf(index);
    if (entries_[at].key)
        keys_.erase(*entries_[at].key);
    entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(at));
    if (at < entries_.size())
        shiftKeys(at + 1, -1);
}

void Collection::clear() {
    entries_.clear();
    keys_.clear();
}

Variant Collection::call(std::u16string_view name, CallKind kind, std::span<Variant> args) {
    auto is = [&](std::u16string_view member) { return textEqual(name, member, Compare::Text); };
    if (is(u"Count") && kind != CallKind::PropertyLet) {
        if (!args.empty())
            throw VbError(vberr::wrongArgumentCount);
        return Variant(count());
    }
    if ((is(u"Item") || name.empty()) && kind != CallKind::PropertyLet) {
        if (args.size() != 1)
            throw VbError(args.empty() ? vberr::argumentNotOptional : vberr::wrongArgumentCount);
        return item(args[0]);
    }
    if (is(u"Add") && kind == CallKind::Method) {
        if (args.empty() || args[0].isMissing())
            throw VbError(vberr::argumentNotOptional);
        if (args.size() > 4)
            throw VbError(vberr::wrongArgumentCount);
        add(args[0], argument(args, 1), argument(args, 2), argument(args, 3));
        return Variant();
    }
    if (is(u"Remove") && kind == CallKind::Method) {
        if (args.size() != 1)
            throw VbError(args.empty() ? vberr::argumentNotOptional : vberr::wrongArgumentCount);
        remove(args[0]);
        return Variant();
    }
    throw VbError(vberr::noSuchMember);
}

} // namespace velkor6
