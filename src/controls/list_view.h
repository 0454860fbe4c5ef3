// The caller's list view control as the helpers use it: its properties by name, its columns
// through the messages of the list-view window.
#pragma once

#include "velkor6/locale.h"
#include "velkor6/platform/window_manager.h"
#include "velkor6/variant.h"

#include <cstdint>

namespace velkor6::controls {

// Messages of a list-view window (ListViewMessageConsts).
namespace lvm {
inline constexpr std::uint32_t getColumnWidth = 4125;
inline constexpr std::uint32_t setColumnWidth = 4126;
} // namespace lvm

class ListView {
public:
    // windows may be nullptr on a platform without windows: then no column has a width.
    // Raises error 91 when control is Nothing.
    ListView(ObjectRef control, WindowManager* windows, const Locale& loc);

    Object& control() const { return *control_; }
    // The control's hwnd property.
    WindowHandle window() const;
    // ColumnHeaders.Count.
    std::int32_t columnCount() const;
    // In pixels; the first column is 0.
    std::int32_t columnWidth(std::int32_t column) const;
    void setColumnWidth(std::int32_t column, std::int32_t width) const;

private:
    Variant property(Object& object, std::u16string_view name) const;

    ObjectRef control_;
    WindowManager* windows_;
    Locale locale_;
};

} // namespace velkor6::controls
