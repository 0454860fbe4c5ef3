// A list box or combo box of the caller's, reached by its members' names: Clear, AddItem,
// NewIndex and ItemData.
#pragma once

#include "velkor6/locale.h"
#include "velkor6/variant.h"

#include <cstdint>
#include <string_view>

namespace velkor6::controls {

class ListBox {
public:
    // Raises error 91 when control is Nothing.
    ListBox(ObjectRef control, const Locale& loc);

    void clear() const;
    // Appends an entry and answers its index (NewIndex).
    std::int32_t addItem(std::u16string_view text) const;
    void setItemData(std::int32_t index, std::int32_t data) const;

private:
    ObjectRef control_;
    Locale locale_;
};

// A tab strip of the caller's: its Tabs collection's Clear and Add.
class TabStrip {
public:
    // Raises error 91 when control is Nothing.
    explicit TabStrip(ObjectRef control);

    void clearTabs() const;
    // Tabs.Add with only the caption: the tab goes last and has no key.
    void addTab(std::u16string_view caption) const;

private:
    ObjectRef tabs() const;

    ObjectRef control_;
};

} // namespace velkor6::controls
