#include "resources/dom_document.h"

#include "core/convert.h"
#include "core/text.h"
#include "velkor6/vb_error.h"

#include <vector>

namespace velkor6::resources {
namespace {

bool is(std::u16string_view name, std::u16string_view member) {
    return textEqual(name, member, Compare::Text);
}

const Variant& argument(std::span<Variant> args, std::size_t i) {
    if (i >= args.size())
        throw VbError(vberr::argumentNotOptional);
    return args[i];
}

std::u16string textArgument(std::span<Variant> args, std::size_t i) {
    return toString(argument(args, i), Locale::englishUS());
}

class DomNodeList final : public Object {
public:
    explicit DomNodeList(std::vector<XmlNodeRef> nodes) : nodes_(std::move(nodes)) {}

    std::u16string typeName() const override { return u"IXMLDOMNodeList"; }

    Variant call(std::u16string_view name, CallKind, std::span<Variant> args) override {
        if (is(name, u"length"))
            return static_cast<std::int32_t>(nodes_.size());
        if (is(name, u"item")) {
            // Like the DOM: an index outside the list gives Nothing, not an error.
            const std::int32_t i = toLong(argument(args, 0), Locale::englishUS());
            if (i < 0 || static_cast<std::size_t>(i) >= nodes_.size())
                return Variant::nothing();
            return ObjectRef(std::make_shared<DomNode>(nodes_[static_cast<std::size_t>(i)]));
        }
        throw VbError(vberr::noSuchMember);
    }

private:
    std::vector<XmlNodeRef> nodes_;
};

} // namespace

Variant DomDocument::call(std::u16string_view name, CallKind, std::span<Variant> args) {
    if (is(name, u"loadXML"))
        return doc_->loadXml(textArgument(args, 0));
    if (is(name, u"selectNodes"))
        return ObjectRef(std::make_shared<DomNodeList>(doc_->selectNodes(textArgument(args, 0))));
    if (is(name, u"selectSingleNode")) {
        auto nodes = doc_->selectNodes(textArgument(args, 0));
        if (nodes.empty())
            return Variant::nothing();
        return ObjectRef(std::make_shared<DomNode>(std::move(nodes.front())));
    }
    throw VbError(vberr::noSuchMember);
}

Variant DomNode::call(std::u16string_view name, CallKind, std::span<Variant> args) {
    if (is(name, u"getAttribute")) {
        auto value = node_->attribute(textArgument(args, 0));
        return value ? Variant(std::move(*value)) : Variant::null();
    }
    if (is(name, u"nodeName"))
        return node_->name();
    if (is(name, u"text"))
        return node_->text();
    throw VbError(vberr::noSuchMember);
}

ObjectRef newDomDocument(XmlService& service) {
    return std::make_shared<DomDocument>(service.createDocument());
}

} // namespace velkor6::resources
