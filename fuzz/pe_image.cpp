// Resource libraries: any bytes read as a PE image, its resources and string tables looked up.
#include "resources/pe_image.h"

#include "fuzz_input.h"
#include "resources/resource_library.h"

using namespace velkor6;
using resources::ResourceId;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Input in(data, size);
    const auto typeNumber = in.number<std::uint16_t>();
    const auto nameNumber = in.number<std::uint16_t>();
    const auto stringId = in.number<std::int64_t>();
    const std::u16string typeText = in.text();
    const auto image = resources::PeImage::read(std::string(in.rest()));
    if (!image)
        return 0;
    const auto typeByText = ResourceId::fromText(typeText);
    for (const ResourceId& type : {ResourceId{typeNumber}, ResourceId{std::u16string(u"XML")},
                                   typeByText.value_or(ResourceId{std::uint16_t{10}})}) {
        for (const ResourceId& name : {ResourceId{nameNumber}, ResourceId{std::uint16_t{1}},
                                       ResourceId{std::u16string(u"DATA")}}) {
            if (const auto bytes = image->find(type, name))
                resources::resourceText(*bytes);
        }
    }
    resources::loadString(*image, stringId);
    image->string(static_cast<std::uint32_t>(stringId));
    return 0;
}
