#include "lzw_command.h"

#include "core/text.h"
#include "lzw/lzw.h"
#include "velkor6/vb_error.h"

#include <string>

namespace velkor6::cli {
namespace {

std::string readAll(std::istream& in) {
    std::string data;
    char chunk[1 << 16];
    while (in.read(chunk, sizeof chunk) || in.gcount() > 0)
        data.append(chunk, static_cast<std::size_t>(in.gcount()));
    return data;
}

int write(std::ostream& out, const std::string& data) {
    out.write(data.data(), static_cast<std::streamsize>(data.size()));
    out.flush();
    return out ? 0 : 1;
}

} // namespace

int runDeflate(std::istream& in, std::ostream& out) {
    return write(out, lzw::deflate(readAll(in)));
}

int runInflate(std::istream& in, std::ostream& out, bool strict, std::ostream& err) {
    const std::string packed = readAll(in);
    try {
        return write(out, strict ? lzw::inflateStrict(packed) : lzw::inflate(packed));
    } catch (const VbError& e) {
        err << "error " << e.number() << ": " << toUtf8(e.description()) << " ("
            << toUtf8(e.source()) << ")\n";
        return 1;
    }
}

} // namespace velkor6::cli
