#include "reference_lzw.h"

#include "velkor6/vb_error.h"

namespace velkor6::lzw::reference {
namespace {

struct Dictionary {
    std::string entry[512];
    int next = 258;

    Dictionary() {
        for (int i = 0; i < 256; ++i)
            entry[i] = std::string(1, static_cast<char>(i));
    }
    void reset() {
        for (int i = 256; i < 512; ++i)
            entry[i].clear();
        next = 258;
    }
    int lookup(const std::string& t) const {
        if (t.size() == 1)
            return static_cast<unsigned char>(t[0]);
        for (int i = 258; i < next; ++i) {
            if (entry[i] == t)
                return i;
        }
        return 512;
    }
    bool add(const std::string& t) {
        bool wasReset = false;
        if (next == 512) {
            reset();
            wasReset = true;
        }
        entry[next++] = t;
        return wasReset;
    }
};

} // namespace

std::vector<std::uint32_t> unpack(std::string_view packed) {
    std::string bits;
    for (char ch : std::string(1, '\0') + std::string(packed)) {
        for (int b = 0; b < 8; ++b)
            bits += ((static_cast<unsigned char>(ch) >> b) & 1) ? '1' : '0';
    }
    std::vector<std::uint32_t> codes;
    for (std::size_t at = 0; at + 9 <= bits.size(); at += 9) {
        std::uint32_t c = 0;
        for (int b = 0; b < 9; ++b)
            c |= static_cast<std::uint32_t>(bits[at + b] == '1') << b;
        codes.push_back(c);
    }
    return codes;
}

std::string pack(const std::vector<std::uint32_t>& codes) {
    std::string bits;
    for (std::uint32_t c : codes) {
        for (int b = 0; b < 9; ++b)
            bits += ((c >> b) & 1) ? '1' : '0';
    }
    std::string out;
    for (std::size_t at = 0; at + 8 <= bits.size(); at += 8) {
        int byte = 0;
        for (int b = 0; b < 8; ++b)
            byte |= (bits[at + b] == '1') << b;
        out += static_cast<char>(byte);
    }
    return out.substr(1);
}

std::string deflate(std::string_view bytes) {
    Dictionary d;
    std::vector<std::uint32_t> codes{256};
    std::string w;
    for (char c : bytes) {
        const std::string wc = w + c;
        if (d.lookup(wc) != 512) {
            w = wc;
            continue;
        }
        codes.push_back(static_cast<std::uint32_t>(d.lookup(w)));
        if (d.add(wc))
            codes.push_back(256);
        w = std::string(1, c);
    }
    if (!w.empty()) // the empty text has no string to code
        codes.push_back(static_cast<std::uint32_t>(d.lookup(w)));
    codes.push_back(257);
    codes.push_back(0);
    return pack(codes);
}

std::string inflate(std::string_view packed) {
    const std::vector<std::uint32_t> codes = unpack(packed);
    auto code = [&](std::size_t i) {
        if (i >= codes.size())
            throw VbError(vberr::subscriptOutOfRange);
        return codes[i];
    };
    if (code(0) != 256)
        return {};
    Dictionary d;
    std::uint32_t prev = code(1);
    std::string out = d.entry[prev];
    for (std::size_t i = 2; i < codes.size(); ++i) {
        const std::uint32_t c = codes[i];
        if (c == 256) {
            d.reset();
            prev = 256;
        } else if (c == 257) {
            break;
        } else if (!d.entry[c].empty()) {
            out += d.entry[c];
            d.add(d.entry[prev] + d.entry[c].substr(0, 1));
            prev = c;
        } else {
            const std::string x = d.entry[prev] + d.entry[prev].substr(0, 1);
            out += x;
            d.add(x);
            prev = c;
        }
    }
    return out;
}

} // namespace velkor6::lzw::reference
