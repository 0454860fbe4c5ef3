// Fields of the caller's forms: option groups, text selection, focus, control arrays and
// containers, reached through the controls' VB members.
#pragma once

#include "velkor6/locale.h"
#include "velkor6/variant.h"

#include <cstdint>
#include <string_view>

namespace velkor6::controls {

// The index of the first element (from LBound up) of the option group, a control array of the
// form, whose Value is true; -1 when none is.
std::int32_t checkedOption(Object& form, std::u16string_view group, const Locale& loc);

// SelStart 0 and SelLength the length of Text.
bool isWholeTextSelected(Object& field, const Locale& loc);

// Selects the whole Text. Without changeSelection a field where part of the text is selected
// already (SelLength > 0) keeps that selection.
void selectWholeText(Object& field, bool changeSelection, const Locale& loc);

// The status panel's Text becomes the field's ToolTipText.
void showTip(Object& field, Object& panel);

// Reading Index succeeds: the control is an element of a control array.
bool hasIndex(Object& control);

// The container's Controls collection (Count, default member from 0) holds a control named
// name (any letter case), and for index >= 0 one whose Index is index.
bool containsControl(Object& container, std::u16string_view name, std::int32_t index,
                     const Locale& loc);

// The control's Container, or its Parent when it has none; Nothing when neither is read.
ObjectRef containerOf(Object& control);

// Calls SetFocus when the control is Visible and Enabled; false when it did not.
bool focusIfUsable(Object& control, const Locale& loc);

} // namespace velkor6::controls
