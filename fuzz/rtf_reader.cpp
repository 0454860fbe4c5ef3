// The RTF reader on any text: it must not crash, and what it writes must be HTML whose only
// markup is its own balanced paragraphs, spans and line breaks, every text character escaped.
#include "dialogs/rtf_reader.h"

#include "fuzz_input.h"

#include <cstdlib>

namespace {

bool startsWith(std::u16string_view s, std::u16string_view prefix) {
    return s.substr(0, prefix.size()) == prefix;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    velkor6::fuzz::Input in(data, size);
    const std::u16string html = velkor6::dialogs::rtfToHtml(in.text());
    int paragraphs = 0;
    int spans = 0;
    for (std::size_t i = 0; i < html.size(); ++i) {
        if (html[i] == u'>')
            std::abort();
        if (html[i] != u'<')
            continue;
        const std::u16string_view tag = std::u16string_view(html).substr(i);
        if (startsWith(tag, u"<p ")) {
            if (paragraphs++ != 0 || spans != 0)
                std::abort();
        } else if (startsWith(tag, u"</p>")) {
            if (--paragraphs != 0 || spans != 0)
                std::abort();
        } else if (startsWith(tag, u"<span ")) {
            if (paragraphs != 1 || spans++ != 0)
                std::abort();
        } else if (startsWith(tag, u"</span>")) {
            if (--spans != 0)
                std::abort();
        } else if (!startsWith(tag, u"<br />")) {
            std::abort();
        }
        const std::size_t end = html.find(u'>', i);
        if (end == std::u16string::npos)
            std::abort();
        // Attribute values hold no quote or angle bracket of the text.
        i = end;
    }
    if (paragraphs != 0 || spans != 0)
        std::abort();
    return 0;
}
