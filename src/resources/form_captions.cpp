#include "resources/form_captions.h"

#include "core/convert.h"
#include "core/text.h"
#include "platform/text_file.h"
#include "velkor6/vb_error.h"

#include <map>
#include <utility>

namespace velkor6::resources {
namespace {

using Key = std::pair<std::u16string, std::int32_t>; // lower-case name, Index (-1: none)

std::optional<std::int32_t> numberOf(const std::optional<std::u16string>& text) {
    if (!text || text->empty())
        return std::nullopt;
    std::int32_t n = 0;
    bool negative = false;
    std::size_t i = 0;
    if ((*text)[0] == u'-') {
        negative = true;
        i = 1;
    }
    if (i == text->size())
        return std::nullopt;
    for (; i < text->size(); ++i) {
        const char16_t c = (*text)[i];
        if (c < u'0' || c > u'9' || n > 100000000)
            return std::nullopt;
        n = n * 10 + (c - u'0');
    }
    return negative ? -n : n;
}

Key keyOf(const CaptionItem& item) {
    return {lowerCase(item.name), item.number.value_or(-1)};
}

bool setText(Object& target, const std::u16string& text) {
    for (const std::u16string_view property : {u"Caption", u"Text"}) {
        try {
            Variant value(text);
            target.call(property, CallKind::PropertyLet, std::span<Variant>(&value, 1));
            return true;
        } catch (const VbError&) {
        }
    }
    return false;
}

// The form's controls by name and Index; reading Index fails for a control in no array.
std::map<Key, ObjectRef> controlsOf(Object& form, const Locale& locale) {
    std::map<Key, ObjectRef> found;
    try {
        const Variant controls = form.call(u"Controls", CallKind::PropertyGet, {});
        if (!controls.isObject() || !controls.object())
            return found;
        Object& list = *controls.object();
        const std::int32_t count = toLong(list.call(u"Count", CallKind::PropertyGet, {}), locale);
        for (std::int32_t i = 0; i < count; ++i) {
            try {
                Variant index(i);
                const Variant item =
                    list.call(u"Item", CallKind::PropertyGet, std::span<Variant>(&index, 1));
                if (!item.isObject() || !item.object())
                    continue;
                const std::u16string name =
                    toString(item.object()->call(u"Name", CallKind::PropertyGet, {}), locale);
                std::int32_t arrayIndex = -1;
                try {
                    arrayIndex =
                        toLong(item.object()->call(u"Index", CallKind::PropertyGet, {}), locale);
                } catch (const VbError&) {
                }
                found.emplace(Key{lowerCase(name), arrayIndex}, item.object());
            } catch (const VbError&) {
            }
        }
    } catch (const VbError&) {
    }
    return found;
}

} // namespace

std::vector<CaptionItem> formCaptions(const XmlDocument& captions, std::u16string_view form,
                                      std::int16_t langid) {
    std::int16_t fallback = defaultFallbackLanguage;
    for (const XmlNodeRef& root : captions.selectNodes(u"/resources"))
        if (const auto n = numberOf(root->attribute(u"fallback")); n && *n >= 0 && *n < 32768)
            fallback = static_cast<std::int16_t>(*n);

    std::vector<CaptionItem> wanted, standIns;
    for (const XmlNodeRef& node : captions.selectNodes(u"/resources/item")) {
        const auto of = node->attribute(u"form");
        if (!of || !textEqual(*of, form, Compare::Text))
            continue;
        const auto lang = numberOf(node->attribute(u"langid"));
        if (!lang || (*lang != langid && *lang != fallback))
            continue;
        CaptionItem item{node->attribute(u"name").value_or(u""),
                         numberOf(node->attribute(u"number")),
                         node->attribute(u"text").value_or(u"")};
        (*lang == langid ? wanted : standIns).push_back(std::move(item));
    }
    std::map<Key, bool> have;
    for (const CaptionItem& item : wanted)
        have[keyOf(item)] = true;
    for (CaptionItem& item : standIns)
        if (have.emplace(keyOf(item), true).second)
            wanted.push_back(std::move(item));
    return wanted;
}

std::optional<std::u16string> captionsText(FileSystem& files, std::u16string_view captions) {
    const std::size_t first = captions.find_first_not_of(u" \t\r\n");
    if (first != std::u16string_view::npos && captions[first] == u'<')
        return std::u16string(captions);
    const std::optional<std::string> bytes = files.readFile(captions);
    if (!bytes)
        return std::nullopt;
    return decodeText(*bytes, textEncoding(*bytes));
}

std::int32_t applyCaptions(Object& form, std::u16string_view formName,
                           const std::vector<CaptionItem>& items, const Locale& locale) {
    std::int32_t applied = 0;
    std::optional<std::map<Key, ObjectRef>> controls;
    for (const CaptionItem& item : items) {
        if (!item.number && textEqual(item.name, formName, Compare::Text)) {
            try {
                Variant value(item.text);
                form.call(u"Caption", CallKind::PropertyLet, std::span<Variant>(&value, 1));
                ++applied;
            } catch (const VbError&) {
            }
            continue;
        }
        if (!controls)
            controls = controlsOf(form, locale);
        const auto it = controls->find(keyOf(item));
        if (it != controls->end() && setText(*it->second, item.text))
            ++applied;
    }
    return applied;
}

} // namespace velkor6::resources
