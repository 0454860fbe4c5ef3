// A list box or combo box of the caller's, reached by its members' names: Clear, AddItem,
// NewIndex and ItemData; and the list boxes whose items carry bit flags in ItemData.
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

// --- Items by their ItemData (ListCount, ItemData(i), Selected(i), ListIndex, NewIndex) ---

// The bitwise Or of the ItemData of the selected items.
std::int32_t selectedFlags(Object& list, const Locale& loc);
// Selects each item whose ItemData bits all lie in flags (an item with 0 always does) and
// clears the selection of all others.
void selectFlags(Object& list, std::int32_t flags, const Locale& loc);

// The ItemData of an item; index -1 stands for the current item (ListIndex).
std::int32_t readItemData(Object& list, std::int32_t index, const Locale& loc);
// Writes the ItemData of an item; index -1 stands for the item added last (NewIndex), or the
// current one when none was added since the list was cleared, and nothing is written when there
// is neither.
void writeItemData(Object& list, std::int32_t index, std::int32_t value, const Locale& loc);

// Sets ListIndex to the first item whose ItemData is value; false, leaving it, when none is.
bool selectItemData(Object& list, std::int32_t value, const Locale& loc);

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
