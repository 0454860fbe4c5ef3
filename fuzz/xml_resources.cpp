// Resource documents: a resource's bytes read as the document's text, loaded, and looked up as
// the resource members look them up.
#include "fuzz_input.h"
#include "platform/posix/xml_service.h"
#include "resources/dom_document.h"
#include "resources/resource_library.h"
#include "resources/resource_text.h"
#include "resources/xml_lookups.h"
#include "velkor6/vb_error.h"

using namespace velkor6;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const auto service = posix::createXmlService();
    fuzz::Input in(data, size);
    const auto number = in.number<std::int16_t>();
    const std::u16string name = in.text();
    const std::u16string prop = in.text();

    auto doc = service->createDocument();
    if (!doc->loadXml(resources::resourceText(in.rest())))
        return 0;
    resources::languages(*doc);
    const Locale& loc = Locale::englishUS();
    const ObjectRef dom = std::make_shared<resources::DomDocument>(doc);
    resources::xmlRes(dom, name, number, loc);
    resources::xmlRes(dom, name, -1, loc);
    try {
        for (const ObjectRef& item : resources::selectItems(dom, name, number, loc))
            resources::itemProp(item, prop, loc);
    } catch (const VbError&) {
    }
    return 0;
}
