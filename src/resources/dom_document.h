// XML documents and their nodes as objects a caller holds, answering the few DOM members the
// resource lookups use: a document's loadXML and selectNodes, a node list's length and item,
// a node's getAttribute, nodeName and text.
#pragma once

#include "velkor6/platform/xml.h"
#include "velkor6/variant.h"

#include <memory>
#include <string>
#include <string_view>

namespace velkor6::resources {

class DomDocument final : public Object {
public:
    explicit DomDocument(std::shared_ptr<XmlDocument> doc) : doc_(std::move(doc)) {}

    std::u16string typeName() const override { return u"DOMDocument"; }
    // loadXML(text) As Boolean, selectNodes(query) As node list, selectSingleNode(query) As
    // node or Nothing.
    Variant call(std::u16string_view name, CallKind kind, std::span<Variant> args) override;

    XmlDocument& document() const { return *doc_; }

private:
    std::shared_ptr<XmlDocument> doc_;
};

class DomNode final : public Object {
public:
    explicit DomNode(XmlNodeRef node) : node_(std::move(node)) {}

    std::u16string typeName() const override { return u"IXMLDOMElement"; }
    // getAttribute(name) (Null when missing), nodeName, text.
    Variant call(std::u16string_view name, CallKind kind, std::span<Variant> args) override;

    const XmlNode& node() const { return *node_; }

private:
    XmlNodeRef node_;
};

// A new, empty document over the platform's XML service.
ObjectRef newDomDocument(XmlService& service);

} // namespace velkor6::resources
