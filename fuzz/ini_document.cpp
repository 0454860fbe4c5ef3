// Settings files: read, written, and read again give the same settings, before and after a
// change; a second write gives the same bytes.
#include "applib/ini_document.h"

#include "core/text.h"
#include "fuzz_input.h"
#include "platform/ansi.h"
#include "platform/text_file.h"

#include <cstdlib>
#include <utility>
#include <vector>

using namespace velkor6;

namespace {

using Probe = std::pair<std::u16string, std::u16string>;

// The section and key names the lines of an ANSI file name, as the probes to read.
std::vector<Probe> probesOf(std::string_view bytes) {
    std::vector<Probe> probes;
    std::u16string section;
    const std::u16string text = fromAnsi(bytes);
    std::size_t start = 0;
    while (start <= text.size() && probes.size() < 32) {
        const std::size_t end = std::min(text.find_first_of(u"\r\n", start), text.size());
        const std::u16string_view line = std::u16string_view(text).substr(start, end - start);
        if (!line.empty() && line.front() == u'[') {
            section = line.substr(1, line.find(u']') - 1);
        } else if (const std::size_t eq = line.find(u'='); eq != line.npos) {
            probes.emplace_back(section, line.substr(0, eq));
        }
        start = end + 1;
    }
    return probes;
}

bool hasLineBreak(std::u16string_view s) {
    return s.find_first_of(u"\r\n") != s.npos;
}

// Whether the file can hold the text. UTF-16 holds any; an ANSI file that meets a character its
// code page lacks is written as UTF-8, and UTF-8 has no place for a lone surrogate.
bool encodable(std::u16string_view s, TextEncoding encoding) {
    if (encoding == TextEncoding::Utf16Le || encoding == TextEncoding::Utf16Be)
        return true;
    return fromUtf8(toUtf8(s)) == s;
}

void sameSettings(const app::IniDocument& a, const app::IniDocument& b,
                  const std::vector<Probe>& probes) {
    for (const auto& [section, key] : probes) {
        if (a.value(section, key) != b.value(section, key))
            std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Input in(data, size);
    const bool remove = in.flag();
    const std::u16string section = in.text();
    const std::u16string key = in.text();
    const std::u16string value = in.text();
    const std::string_view bytes = in.rest();

    std::vector<Probe> probes = probesOf(bytes);
    probes.emplace_back(section, key);

    app::IniDocument doc(bytes);
    const std::string written = doc.bytes();
    const app::IniDocument reread(written);
    sameSettings(doc, reread, probes);
    if (reread.bytes() != written)
        std::abort();

    // A line break in a name or value would start another line of the file.
    for (const std::u16string* piece : {&section, &key, &value}) {
        if (hasLineBreak(*piece) || !encodable(*piece, doc.encoding()))
            return 0;
    }
    if (remove)
        doc.remove(section, key);
    else
        doc.set(section, key, value);
    const std::string changed = doc.bytes();
    const app::IniDocument rereadChanged(changed);
    sameSettings(doc, rereadChanged, probes);
    if (rereadChanged.bytes() != changed)
        std::abort();
    return 0;
}
