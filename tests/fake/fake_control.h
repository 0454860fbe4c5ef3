// Controls of the caller's for the control helpers: a control answering the properties a test
// gives it and the members it scripts, control arrays with holes, and collections from 0.
#pragma once

#include "velkor6/variant.h"
#include "velkor6/vb_error.h"

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace velkor6::fake {

class FakeControl final : public Object {
public:
    using Member = std::function<Variant(CallKind, std::span<Variant>)>;

    explicit FakeControl(std::map<std::u16string, Variant> props = {})
        : properties(std::move(props)) {}

    std::u16string typeName() const override { return u"Control"; }
    // Scripted members first (each call recorded), then properties: a get reads one, a let
    // writes one it has. Anything else raises 438.
    Variant call(std::u16string_view name, CallKind kind, std::span<Variant> args) override {
        const std::u16string key(name);
        if (const auto m = members.find(key); m != members.end()) {
            calls.push_back(key);
            return m->second(kind, args);
        }
        const auto p = properties.find(key);
        if (p == properties.end())
            throw VbError(vberr::noSuchMember);
        if (kind != CallKind::PropertyLet)
            return p->second;
        p->second = args.back();
        return {};
    }

    Variant& operator[](const std::u16string& name) { return properties.at(name); }

    std::map<std::u16string, Variant> properties;
    std::map<std::u16string, Member> members;
    std::vector<std::u16string> calls;
};

// A VB control array: LBound, UBound, Count and Item(i); a missing element raises 340.
class FakeControlArray final : public Object {
public:
    std::u16string typeName() const override { return u"Object"; }
    Variant call(std::u16string_view name, CallKind, std::span<Variant> args) override {
        if (name == u"LBound")
            return elements.empty() ? 0 : elements.begin()->first;
        if (name == u"UBound")
            return elements.empty() ? -1 : elements.rbegin()->first;
        if (name == u"Count")
            return static_cast<std::int32_t>(elements.size());
        if ((name == u"Item" || name.empty()) && args.size() == 1) {
            const auto it = elements.find(args[0].longValue());
            if (it == elements.end())
                throw VbError(controlArrayElementMissing);
            return it->second;
        }
        throw VbError(vberr::noSuchMember);
    }

    std::map<std::int32_t, ObjectRef> elements;

private:
    static constexpr std::int32_t controlArrayElementMissing = 340;
};

// A collection read from 0 through Count and its default member (Controls, Forms).
class FakeCollection final : public Object {
public:
    std::u16string typeName() const override { return u"Collection"; }
    Variant call(std::u16string_view name, CallKind, std::span<Variant> args) override {
        if (name == u"Count")
            return static_cast<std::int32_t>(items.size());
        if ((name == u"Item" || name.empty()) && args.size() == 1)
            return items.at(static_cast<std::size_t>(args[0].longValue()));
        throw VbError(vberr::noSuchMember);
    }

    std::vector<ObjectRef> items;
};

} // namespace velkor6::fake
