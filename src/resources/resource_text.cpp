#include "resources/resource_text.h"

#include "core/text.h"

namespace velkor6::resources {
namespace {

std::u16string decimal(std::int16_t n) {
    return fromUtf8(std::to_string(n));
}

// The attribute of the first node the query selects, "" without one.
std::u16string firstAttribute(Module& module, std::u16string_view query,
                              std::span<const XmlVariable> variables,
                              std::u16string_view attribute) {
    try {
        const XmlDocument* doc = ownDocument(module, module.resourceDocument());
        if (doc == nullptr)
            return {};
        const auto nodes = doc->selectNodes(query, variables);
        if (nodes.empty())
            return {};
        return nodes.front()->attribute(attribute).value_or(u"");
    } catch (const std::exception&) {
        return {};
    }
}

} // namespace

XmlDocument* ownDocument(Module& module, std::shared_ptr<XmlDocument>& doc) {
    if (!doc) {
        XmlService* service = module.platform().xml.get();
        if (service == nullptr)
            return nullptr;
        doc = service->createDocument();
    }
    if (doc->empty())
        doc->loadXml(fromUtf8(embeddedDocument()));
    return doc.get();
}

std::u16string resText(Module& module, std::u16string_view name, std::int16_t langid) {
    const XmlVariable variables[] = {{u"langid", decimal(langid)}, {u"name", std::u16string(name)}};
    return firstAttribute(module, u"/resources/item[@langid = $langid][@name = $name]", variables,
                          u"text");
}

std::u16string langExtension(Module& module, std::int16_t langid) {
    const XmlVariable variables[] = {{u"langid", decimal(langid)}};
    return firstAttribute(module, u"/resources/lang[@langid = $langid]", variables, u"extension");
}

std::vector<Language> languages(const XmlDocument& doc) {
    std::vector<Language> result;
    for (const XmlNodeRef& node : doc.selectNodes(u"/resources/lang")) {
        result.push_back({node->attribute(u"langid").value_or(u""),
                          node->attribute(u"name").value_or(u""),
                          node->attribute(u"extension").value_or(u"")});
    }
    return result;
}

} // namespace velkor6::resources
