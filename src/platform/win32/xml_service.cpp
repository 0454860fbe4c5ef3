// XML documents through MSXML (DOMDocument 6.0, else 3.0) and its XPath.
// clang-format off
#include <windows.h>
#include <msxml2.h>
// clang-format on

#include "platform/win32/com_ptr.h"
#include "platform/win32/services.h"
#include "platform/win32/wide.h"
#include "velkor6/vb_error.h"

#include <memory>
#include <string>
#include <vector>

namespace velkor6::win32 {
namespace {

// IXMLDOMDocument2, which carries setProperty; the import libraries do not define it.
const IID iidDocument2 = {
    0x2933bf95, 0x7b36, 0x11d2, {0xb2, 0x0e, 0x00, 0xc0, 0x4f, 0x98, 0x3e, 0x60}};

// COM for the calling thread while a document lives; a thread that has it already keeps its own.
class Apartment {
public:
    Apartment() : initialised_(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;
    ~Apartment() {
        if (initialised_)
            CoUninitialize();
    }

private:
    bool initialised_;
};

// An XPath string literal of any text: quotes of one kind go inside the other, a text with
// both kinds is joined with concat().
std::u16string xpathLiteral(std::u16string_view value) {
    if (value.find(u'"') == std::u16string_view::npos)
        return u"\"" + std::u16string(value) + u"\"";
    if (value.find(u'\'') == std::u16string_view::npos)
        return u"'" + std::u16string(value) + u"'";
    std::u16string out = u"concat(";
    std::size_t start = 0;
    while (start < value.size()) {
        const std::size_t quote = value.find(u'"', start);
        const std::size_t end = quote == std::u16string_view::npos ? value.size() : quote;
        if (end > start)
            out += u"\"" + std::u16string(value.substr(start, end - start)) + u"\", ";
        if (quote != std::u16string_view::npos)
            out += u"'\"', ";
        start = end + (quote == std::u16string_view::npos ? 0 : 1);
    }
    out.resize(out.size() - 2);
    return out + u")";
}

bool isNameChar(char16_t c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') ||
           c == u'_' || c == u'-' || c == u'.' || c > 0x7F;
}

} // namespace

// MSXML's XPath has no variables: each $name outside a string literal becomes the literal of
// its value. Raises error 5 for a variable that was not given.
std::u16string bindXPathVariables(std::u16string_view query,
                                  std::span<const XmlVariable> variables) {
    std::u16string out;
    for (std::size_t i = 0; i < query.size();) {
        const char16_t c = query[i];
        if (c == u'"' || c == u'\'') {
            const std::size_t close = query.find(c, i + 1);
            const std::size_t end = close == std::u16string_view::npos ? query.size() : close + 1;
            out += query.substr(i, end - i);
            i = end;
            continue;
        }
        if (c != u'$') {
            out += c;
            ++i;
            continue;
        }
        std::size_t end = i + 1;
        while (end < query.size() && isNameChar(query[end]))
            ++end;
        const std::u16string_view name = query.substr(i + 1, end - i - 1);
        const XmlVariable* found = nullptr;
        for (const XmlVariable& v : variables) {
            if (v.name == name)
                found = &v;
        }
        if (found == nullptr)
            throw VbError(vberr::invalidCall);
        out += xpathLiteral(found->value);
        i = end;
    }
    return out;
}

namespace {

class MsxmlNode final : public XmlNode {
public:
    MsxmlNode(std::shared_ptr<Apartment> apartment, ComPtr<IXMLDOMNode> node)
        : apartment_(std::move(apartment)), node_(std::move(node)) {}

    std::u16string name() const override {
        Bstr b;
        node_->get_nodeName(b.put());
        return b.get() ? fromBstr(b.get()) : u"";
    }
    std::u16string text() const override {
        Bstr b;
        node_->get_text(b.put());
        return b.get() ? fromBstr(b.get()) : u"";
    }
    std::optional<std::u16string> attribute(std::u16string_view name) const override {
        ComPtr<IXMLDOMElement> element;
        if (FAILED(
                node_->QueryInterface(IID_IXMLDOMElement, reinterpret_cast<void**>(element.put()))))
            return std::nullopt;
        Bstr key(name);
        ScopedVariant value;
        if (element->getAttribute(key.get(), value.get()) != S_OK || V_VT(value.get()) != VT_BSTR)
            return std::nullopt;
        return fromBstr(V_BSTR(value.get()));
    }

private:
    std::shared_ptr<Apartment> apartment_;
    ComPtr<IXMLDOMNode> node_; // keeps its document alive
};

class MsxmlDocument final : public XmlDocument {
public:
    MsxmlDocument() {
        for (const wchar_t* progId : {L"Msxml2.DOMDocument.6.0", L"Msxml2.DOMDocument.3.0"}) {
            CLSID id{};
            if (SUCCEEDED(CLSIDFromProgID(progId, &id)) &&
                SUCCEEDED(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, iidDocument2,
                                           reinterpret_cast<void**>(document_.put()))))
                break;
        }
        if (!document_)
            throw VbError(429, u"ActiveX component can't create object");
        document_->put_async(VARIANT_FALSE);
        document_->put_resolveExternals(VARIANT_FALSE);
        document_->put_validateOnParse(VARIANT_FALSE);
        Bstr property(u"SelectionLanguage");
        ScopedVariant xpath;
        V_VT(xpath.get()) = VT_BSTR;
        V_BSTR(xpath.get()) = allocBstr(u"XPath");
        document_->setProperty(property.get(), *xpath.get());
    }

    bool loadXml(std::u16string_view text) override {
        Bstr source(text);
        VARIANT_BOOL ok = VARIANT_FALSE;
        loaded_ = SUCCEEDED(document_->loadXML(source.get(), &ok)) && ok != VARIANT_FALSE;
        return loaded_;
    }

    bool empty() const override { return !loaded_; }

    std::vector<XmlNodeRef> selectNodes(std::u16string_view query,
                                        std::span<const XmlVariable> variables) const override {
        Bstr bound(bindXPathVariables(query, variables));
        ComPtr<IXMLDOMNodeList> list;
        if (document_->selectNodes(bound.get(), list.put()) != S_OK || !list)
            throw VbError(vberr::invalidCall);
        std::vector<XmlNodeRef> nodes;
        for (;;) {
            ComPtr<IXMLDOMNode> node;
            if (list->nextNode(node.put()) != S_OK || !node)
                break;
            nodes.push_back(std::make_shared<MsxmlNode>(apartment_, std::move(node)));
        }
        return nodes;
    }

private:
    std::shared_ptr<Apartment> apartment_ = std::make_shared<Apartment>();
    ComPtr<IXMLDOMDocument2> document_;
    bool loaded_ = false;
};

class MsxmlService final : public XmlService {
public:
    std::shared_ptr<XmlDocument> createDocument() override {
        return std::make_shared<MsxmlDocument>();
    }
};

} // namespace

std::unique_ptr<XmlService> createXmlService() {
    return std::make_unique<MsxmlService>();
}

} // namespace velkor6::win32
