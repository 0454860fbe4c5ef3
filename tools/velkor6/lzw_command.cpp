#include "lzw_command.h"

#include "core/text.h"
#include "lzw/lzw.h"
#include "velkor6/vb_error.h"

#include <string>

namespace velkor6::cli {
namespace {

// The whole stream, read at once when its size is known.
std::string readAll(std::istream& in) {
    std::string data;
    if (const auto start = in.tellg(); start != -1 && in.seekg(0, std::ios::end)) {
        if (const auto end = in.tellg(); end > start)
            data.reserve(static_cast<std::size_t>(end - start));
        in.seekg(start);
    }
    in.clear();
    char chunk[1 << 16];
    while (in.read(chunk, sizeof chunk) || in.gcount() > 0)
        data.append(chunk, static_cast<std::size_t>(in.gcount()));
    return data;
}

void writeOut(std::ostream& out, std::string_view data) {
    out.write(data.data(), static_cast<std::streamsize>(data.size()));
}

} // namespace

int runDeflate(std::istream& in, std::ostream& out) {
    writeOut(out, lzw::deflate(readAll(in)));
    out.flush();
    return out ? 0 : 1;
}

int runInflate(std::istream& in, std::ostream& out, bool strict, std::ostream& err) {
    try {
        lzw::Inflater inflater(strict, [&out](std::string_view piece) { writeOut(out, piece); });
        char chunk[1 << 16];
        while (in.read(chunk, sizeof chunk) || in.gcount() > 0)
            inflater.write(std::string_view(chunk, static_cast<std::size_t>(in.gcount())));
        inflater.finish();
    } catch (const VbError& e) {
        out.flush();
        err << "error " << e.number() << ": " << toUtf8(e.description()) << " ("
            << toUtf8(e.source()) << ")\n";
        return 1;
    }
    out.flush();
    return out ? 0 : 1;
}

} // namespace velkor6::cli
