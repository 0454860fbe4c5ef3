// Registry scripts: decoding, parsing, and loading into the in-memory registry, whose keys and
// values are then read back as the registry members read them.
#include "platform/reg_parser.h"

#include "fuzz_input.h"
#include "platform/memory_registry.h"

#include <cstdlib>

using namespace velkor6;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Input in(data, size);
    const std::size_t capacity = in.number<std::uint16_t>();
    const std::string_view bytes = in.rest();
    const auto statements = parseRegScript(decodeRegScript(bytes));

    MemoryRegistry registry;
    if (registry.load(bytes) != statements.has_value())
        std::abort();
    if (!statements)
        return 0;
    for (const RegStatement& s : *statements) {
        Registry::Key key =
            registry.open(s.root, s.path, regaccess::queryValue | regaccess::enumerateSubKeys);
        if (!key)
            continue;
        RegValue value;
        registry.queryValue(key.handle(), s.name, capacity, value);
        std::u16string name;
        for (std::uint32_t i = 0; i < 4; ++i)
            registry.enumKey(key.handle(), i, capacity % 300, name);
    }
    if (registry.openKeyCount() != 0)
        std::abort();
    return 0;
}
