// XML document service: parse a document from text, select its nodes with XPath 1.0, read
// attributes.
#pragma once

#include "velkor6/export.h"

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velkor6 {

// A string value a query reaches as $name. Values go into queries only this way, so that no
// text of a caller ever becomes part of the query itself.
struct XmlVariable {
    std::u16string name;
    std::u16string value;
};

// One node a query selected. It keeps its document's content alive, also after the document
// loaded other text.
class VELKOR6_API XmlNode {
public:
    virtual ~XmlNode() = default;
    // The element's or attribute's name.
    virtual std::u16string name() const = 0;
    // The text of the node and all it holds.
    virtual std::u16string text() const = 0;
    // The attribute's value; nullopt when the node has no such attribute.
    virtual std::optional<std::u16string> attribute(std::u16string_view name) const = 0;
};

using XmlNodeRef = std::shared_ptr<const XmlNode>;

class VELKOR6_API XmlDocument {
public:
    virtual ~XmlDocument() = default;

    // Replaces the content with the parsed text; an encoding the text declares is not read, as
    // the text is already characters. False, and the document left empty, when the text is not
    // well-formed.
    virtual bool loadXml(std::u16string_view text) = 0;
    // True until a text loaded.
    virtual bool empty() const = 0;
    // The nodes the query selects, in document order. Raises VbError 5 for a query that does
    // not compile, names a variable not given, or selects no nodes (a number, say).
    virtual std::vector<XmlNodeRef>
    selectNodes(std::u16string_view query, std::span<const XmlVariable> variables = {}) const = 0;
};

class VELKOR6_API XmlService {
public:
    virtual ~XmlService() = default;
    virtual std::shared_ptr<XmlDocument> createDocument() = 0;
};

} // namespace velkor6
