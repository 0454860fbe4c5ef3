#include "platform/posix/xml_service.h"

#include "core/text.h"
#include "velkor6/vb_error.h"

#include <pugixml.hpp>

namespace velkor6::posix {
namespace {

using Tree = std::shared_ptr<const pugi::xml_document>;

void appendText(const pugi::xml_node& node, std::string& out) {
    for (const pugi::xml_node& child : node.children()) {
        if (child.type() == pugi::node_pcdata || child.type() == pugi::node_cdata)
            out += child.value();
        else if (child.type() == pugi::node_element)
            appendText(child, out);
    }
}

class Node final : public XmlNode {
public:
    Node(Tree tree, const pugi::xpath_node& node) : tree_(std::move(tree)), node_(node) {}

    std::u16string name() const override {
        return fromUtf8(node_.attribute() ? node_.attribute().name() : node_.node().name());
    }

    std::u16string text() const override {
        if (node_.attribute())
            return fromUtf8(node_.attribute().value());
        std::string out;
        if (node_.node().type() == pugi::node_element)
            appendText(node_.node(), out);
        else
            out = node_.node().value();
        return fromUtf8(out);
    }

    std::optional<std::u16string> attribute(std::u16string_view name) const override {
        if (node_.attribute())
            return std::nullopt;
        const pugi::xml_attribute a = node_.node().attribute(toUtf8(name).c_str());
        if (!a)
            return std::nullopt;
        return fromUtf8(a.value());
    }

private:
    Tree tree_;
    pugi::xpath_node node_;
};

class Document final : public XmlDocument {
public:
    bool loadXml(std::u16string_view text) override {
        auto tree = std::make_shared<pugi::xml_document>();
        const pugi::xml_parse_result parsed = tree->load_buffer(
            text.data(), text.size() * sizeof(char16_t), pugi::parse_default, pugi::encoding_utf16);
        // Nodes handed out earlier keep the old tree; the document itself moves on.
        tree_ = parsed ? std::move(tree) : std::make_shared<pugi::xml_document>();
        return static_cast<bool>(parsed);
    }

    bool empty() const override { return !tree_->document_element(); }

    std::vector<XmlNodeRef> selectNodes(std::u16string_view query,
                                        std::span<const XmlVariable> variables) const override {
        pugi::xpath_variable_set set;
        for (const XmlVariable& v : variables)
            set.set(toUtf8(v.name).c_str(), toUtf8(v.value).c_str());
        std::vector<XmlNodeRef> nodes;
        try {
            const pugi::xpath_query compiled(toUtf8(query).c_str(), &set);
            if (compiled.return_type() != pugi::xpath_type_node_set)
                throw VbError(vberr::invalidCall);
            for (const pugi::xpath_node& n : compiled.evaluate_node_set(*tree_))
                nodes.push_back(std::make_shared<Node>(tree_, n));
        } catch (const pugi::xpath_exception& e) {
            throw VbError(vberr::invalidCall, fromUtf8(e.what()));
        }
        return nodes;
    }

private:
    Tree tree_ = std::make_shared<pugi::xml_document>();
};

class Service final : public XmlService {
public:
    std::shared_ptr<XmlDocument> createDocument() override { return std::make_shared<Document>(); }
};

} // namespace

std::unique_ptr<XmlService> createXmlService() {
    return std::make_unique<Service>();
}

} // namespace velkor6::posix
