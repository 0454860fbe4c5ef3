// A list view control of the caller's as the library reaches it by name: its window handle and
// its column headers. The columns themselves live in the fake window manager.
#pragma once

#include "velkor6/variant.h"
#include "velkor6/vb_error.h"

#include <memory>

namespace velkor6::fake {

class FakeListView final : public Object {
public:
    FakeListView(std::int32_t hwnd, std::int32_t columns)
        : hwnd_(hwnd), headers_(std::make_shared<Headers>(columns)) {}

    std::u16string typeName() const override { return u"ListView"; }
    Variant call(std::u16string_view name, CallKind, std::span<Variant>) override {
        if (name == u"hwnd")
            return hwnd_;
        if (name == u"ColumnHeaders")
            return ObjectRef(headers_);
        throw VbError(vberr::noSuchMember);
    }

private:
    struct Headers final : Object {
        explicit Headers(std::int32_t count) : count(count) {}
        std::u16string typeName() const override { return u"ColumnHeaders"; }
        Variant call(std::u16string_view name, CallKind, std::span<Variant>) override {
            if (name == u"Count")
                return count;
            throw VbError(vberr::noSuchMember);
        }
        std::int32_t count;
    };

    std::int32_t hwnd_;
    std::shared_ptr<Headers> headers_;
};

} // namespace velkor6::fake
