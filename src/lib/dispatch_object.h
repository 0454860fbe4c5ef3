// An object of one of the library's classes as a value: calls by name go through the class's
// member table. What vkrInitApp returns, and what front ends hand out for any target.
#pragma once

#include "lib/dispatch.h"

#include <memory>
#include <string>
#include <vector>

namespace velkor6::dispatch {

// Target needs locale() for the argument conversions.
template <class Target>
class TableObject final : public Object {
public:
    TableObject(std::shared_ptr<Target> target, const Table<Target>& table, std::u16string typeName)
        : target_(std::move(target)), table_(table), typeName_(std::move(typeName)) {}

    std::u16string typeName() const override { return typeName_; }

    // Arguments are positional. A property let assigns its last argument, whatever optional
    // parameters the caller left out before it; a property get also reaches a method.
    Variant call(std::u16string_view name, CallKind kind, std::span<Variant> args) override {
        std::vector<Argument> bound;
        bound.reserve(args.size());
        for (Variant& v : args)
            bound.push_back({&v, {}});
        CallKind k = CallKind::Method;
        if (kind == CallKind::PropertyLet) {
            k = CallKind::PropertyLet;
            const Member<Target>* m = find(table_, name, k);
            if (m != nullptr && !m->params.empty() && !bound.empty())
                bound.back().name = m->params.back().name;
        } else if (kind == CallKind::PropertyGet && find(table_, name, CallKind::PropertyGet)) {
            k = CallKind::PropertyGet;
        }
        return invoke(table_, *target_, name, k, bound, target_->locale());
    }

    const std::shared_ptr<Target>& target() const { return target_; }

private:
    std::shared_ptr<Target> target_;
    const Table<Target>& table_;
    std::u16string typeName_;
};

} // namespace velkor6::dispatch
