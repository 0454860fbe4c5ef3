// The caller's automation objects (the host's application object, collections, documents,
// controls) as velkor6 Objects, so that members call them by name.
#pragma once

// clang-format off
#include <windows.h>
#include <oaidl.h>
#include <dispex.h>
// clang-format on

#include "com/com_ptr.h"
#include "velkor6/variant.h"

namespace velkor6::com {

class ForeignObject final : public Object {
public:
    explicit ForeignObject(ComPtr<IDispatch> dispatch) : dispatch_(std::move(dispatch)) {}

    // The name of the object's type description without the leading "_" of a default interface,
    // as VB's TypeName shows it; "Object" without one.
    std::u16string typeName() const override;
    // Calls through IDispatch with the arguments by value; the object's errors come back as
    // VbError with its number, source and description.
    Variant call(std::u16string_view name, CallKind kind, std::span<Variant> args) override;

    IDispatch* dispatch() const { return dispatch_.get(); }

private:
    bool memberId(std::u16string_view name, DISPID& id) const;

    ComPtr<IDispatch> dispatch_;
};

} // namespace velkor6::com
