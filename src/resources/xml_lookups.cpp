#include "resources/xml_lookups.h"

#include "controls/list_box.h"
#include "core/convert.h"
#include "resources/dom_document.h"
#include "velkor6/vb_error.h"

#include <array>

namespace velkor6::resources {
namespace {

std::u16string decimal(std::int16_t n) {
    return fromUtf8(std::to_string(n));
}

std::vector<ObjectRef> selectOwn(const DomDocument& doc, std::u16string_view name,
                                 std::optional<std::int16_t> number) {
    std::u16string query = u"/resources/item[@name = $name]";
    std::vector<XmlVariable> variables{{u"name", std::u16string(name)}};
    if (number) {
        query += u"[@number = $number]";
        variables.push_back({u"number", decimal(*number)});
    }
    std::vector<ObjectRef> items;
    for (XmlNodeRef& node : doc.document().selectNodes(query, variables))
        items.push_back(std::make_shared<DomNode>(std::move(node)));
    return items;
}

// Another DOM's selectNodes takes the query as one text, so the values go in as literals.
std::vector<ObjectRef> selectForeign(Object& doc, std::u16string_view name,
                                     std::optional<std::int16_t> number, const Locale& loc) {
    std::u16string query = u"/resources/item[@name=" + xpathLiteral(name) + u"]";
    if (number)
        query += u"[@number=\"" + decimal(*number) + u"\"]";
    std::array<Variant, 1> args{Variant(std::move(query))};
    const Variant list = doc.call(u"selectNodes", CallKind::Method, args);
    if (!list.isObject() || !list.object())
        throw VbError(vberr::objectRequired);
    const std::int32_t count =
        toLong(list.object()->call(u"length", CallKind::PropertyGet, {}), loc);
    std::vector<ObjectRef> items;
    for (std::int32_t i = 0; i < count; ++i) {
        std::array<Variant, 1> index{Variant(i)};
        const Variant item = list.object()->call(u"item", CallKind::PropertyGet, index);
        if (item.isObject() && item.object())
            items.push_back(item.object());
    }
    return items;
}

std::int32_t itemNumber(const ObjectRef& item, const Locale& loc) {
    const Variant number(itemProp(item, u"number", loc));
    try {
        return isNumeric(number, loc) ? toLong(number, loc) : 0;
    } catch (const VbError&) {
        return 0;
    }
}

void addItems(const controls::ListBox& box, const std::vector<ObjectRef>& items,
              const Locale& loc) {
    for (const ObjectRef& item : items) {
        const std::int32_t index = box.addItem(itemProp(item, u"text", loc));
        box.setItemData(index, itemNumber(item, loc));
    }
}

} // namespace

std::vector<ObjectRef> selectItems(const ObjectRef& doc, std::u16string_view name,
                                   std::optional<std::int16_t> number, const Locale& loc) {
    if (!doc)
        throw VbError(vberr::objectNotSet);
    if (const auto* own = dynamic_cast<const DomDocument*>(doc.get()))
        return selectOwn(*own, name, number);
    return selectForeign(*doc, name, number, loc);
}

std::u16string itemProp(const ObjectRef& node, std::u16string_view prop, const Locale& loc) {
    try {
        if (!node)
            return {};
        if (const auto* own = dynamic_cast<const DomNode*>(node.get()))
            return own->node().attribute(prop).value_or(u"");
        std::array<Variant, 1> args{Variant(prop)};
        const Variant value = node->call(u"getAttribute", CallKind::Method, args);
        return value.isNull() ? std::u16string() : toString(value, loc);
    } catch (const std::exception&) {
        return {};
    }
}

std::u16string xmlRes(const ObjectRef& doc, std::u16string_view name, std::int16_t number,
                      const Locale& loc) {
    try {
        const auto items =
            selectItems(doc, name, number == -1 ? std::nullopt : std::optional(number), loc);
        return items.empty() ? std::u16string() : itemProp(items.front(), u"text", loc);
    } catch (const std::exception&) {
        return {};
    }
}

void fillList(const ObjectRef& doc, const ObjectRef& list, std::u16string_view name,
              const Locale& loc) {
    const controls::ListBox box(list, loc);
    box.clear();
    addItems(box, selectItems(doc, name, std::nullopt, loc), loc);
}

void fillTabStrip(const ObjectRef& doc, const ObjectRef& tabStrip, std::u16string_view name,
                  const Locale& loc) {
    const controls::TabStrip strip(tabStrip);
    strip.clearTabs();
    for (const ObjectRef& item : selectItems(doc, name, std::nullopt, loc))
        strip.addTab(itemProp(item, u"text", loc));
}

void fillComboWithResList(const ObjectRef& doc, const ObjectRef& combo, std::u16string_view resId,
                          std::u16string_view noFormat, const Locale& loc) {
    const controls::ListBox box(combo, loc);
    box.clear();
    if (!noFormat.empty())
        box.setItemData(box.addItem(noFormat), -1);
    addItems(box, selectItems(doc, resId, std::nullopt, loc), loc);
}

std::u16string xpathLiteral(std::u16string_view text) {
    if (text.find(u'"') == std::u16string_view::npos)
        return u"\"" + std::u16string(text) + u"\"";
    if (text.find(u'\'') == std::u16string_view::npos)
        return u"'" + std::u16string(text) + u"'";
    // XPath has no escapes: the double quotes go in as separate single-quoted parts.
    std::u16string result = u"concat(\"";
    for (const char16_t c : text) {
        if (c == u'"')
            result += u"\", '\"', \"";
        else
            result += c;
    }
    return result + u"\")";
}

} // namespace velkor6::resources
