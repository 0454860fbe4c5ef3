// The lookups in a caller's resource document: one item's text, an attribute of a node, and
// lists, tab strips and combo boxes filled with the items of one name.
//
// A caller's document is one made by this library (queried with XPath variables) or any other
// DOM document that answers selectNodes, with node lists answering length and item and nodes
// answering getAttribute, as the system's DOM does.
#pragma once

#include "velkor6/locale.h"
#include "velkor6/variant.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velkor6::resources {

// The item elements of the document named name and, when given, numbered number, in document
// order. Raises the errors of the document and of the query.
std::vector<ObjectRef> selectItems(const ObjectRef& doc, std::u16string_view name,
                                   std::optional<std::int16_t> number, const Locale& loc);

// The attribute of a node; "" when it is missing, when node is Nothing or fails.
std::u16string itemProp(const ObjectRef& node, std::u16string_view prop, const Locale& loc);

// The text of the first item named name, numbered number unless that is -1; "" when there is
// none or the document fails.
std::u16string xmlRes(const ObjectRef& doc, std::u16string_view name, std::int16_t number,
                      const Locale& loc);

// The list's entries: one per item named name, its text, with the item's number as ItemData
// (0 when it has none or it is no Long). The fill members raise the first error of the
// document or the control; what was filled before it stays.
void fillList(const ObjectRef& doc, const ObjectRef& list, std::u16string_view name,
              const Locale& loc);
// The tab strip's tabs: one per item named name, captioned with its text.
void fillTabStrip(const ObjectRef& doc, const ObjectRef& tabStrip, std::u16string_view name,
                  const Locale& loc);
// The combo box's entries: the resource list resId (the items named so, as in fillList), after
// an entry noFormat with ItemData -1 when noFormat is not "".
void fillComboWithResList(const ObjectRef& doc, const ObjectRef& combo, std::u16string_view resId,
                          std::u16string_view noFormat, const Locale& loc);

// An XPath string literal for text: in double quotes, in single quotes when it holds a double
// quote, and joined by concat() when it holds both.
std::u16string xpathLiteral(std::u16string_view text);

} // namespace velkor6::resources
