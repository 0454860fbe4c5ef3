// The library's own resource document: the captions of its dialogs by name and language, and
// the languages it knows.
#pragma once

#include "velkor6/module.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace velkor6::resources {

// The document as the library carries it (UTF-8 XML).
std::string_view embeddedDocument();

// doc, created over the module's XML service when missing and given the library's own
// document when it holds none; nullptr on a platform without XML.
XmlDocument* ownDocument(Module& module, std::shared_ptr<XmlDocument>& doc);

// The text of the item name in language langid of the module-wide document; "" when there is
// none. Never raises.
std::u16string resText(Module& module, std::u16string_view name, std::int16_t langid);

// The two capital letters that stand for a language in the names of resource libraries
// ("DE", "EN"); "" for a language the library does not know. Never raises.
std::u16string langExtension(Module& module, std::int16_t langid);

struct Language {
    std::u16string langid;
    std::u16string name;
    std::u16string extension;
};

// The lang elements of a resource document, in document order.
std::vector<Language> languages(const XmlDocument& doc);

} // namespace velkor6::resources
