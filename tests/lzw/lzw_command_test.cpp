#include "core/text.h"
#include "lzw/global_var.h"
#include "lzw_command.h"
#include "platform/ansi.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>

namespace velkor6::cli {
namespace {

TEST(LzwCommand, BytesRoundTripAndDamagedStreamsFail) {
    std::string bytes;
    for (unsigned i = 0; i < 70000; ++i)
        bytes += static_cast<char>(i * 7 % 256 == 26 ? 0 : i * i % 253);
    std::istringstream in(bytes);
    std::ostringstream packed;
    ASSERT_EQ(runDeflate(in, packed), 0);

    for (bool strict : {true, false}) {
        std::istringstream packedIn(packed.str());
        std::ostringstream out;
        std::ostringstream err;
        EXPECT_EQ(runInflate(packedIn, out, strict, err), 0);
        EXPECT_TRUE(err.str().empty());
        if (strict) {
            EXPECT_TRUE(out.str() == bytes);
        }
    }

    std::istringstream cut(packed.str().substr(0, 5000));
    std::ostringstream out;
    std::ostringstream err;
    EXPECT_EQ(runInflate(cut, out, true, err), 1);
    EXPECT_EQ(err.str(), "error 9: Subscript out of range (velkor6)\n");
}

// A services list like /etc/services: long enough to fill the dictionary many times.
std::string servicesText() {
    std::string text = "# Network services, Internet style\n#\n";
    const char* names[] = {"tcpmux",  "echo",   "discard", "systat",   "daytime",
                           "netstat", "qotd",   "chargen", "ftp-data", "ftp",
                           "ssh",     "telnet", "smtp",    "time"};
    for (int port = 1; port < 400; ++port) {
        const std::string name = names[port % 14] + std::string(port % 3 == 0 ? "-alt" : "");
        for (const char* proto : {"tcp", "udp"})
            text += name + std::string(16 - name.size() % 16, ' ') + std::to_string(port) + "/" +
                    proto + (port % 5 == 0 ? "\t\t# " + name + " service\n" : "\n");
    }
    return text;
}

TEST(LzwCommand, StrictIsExactAndCompatibleDecodesAsTheInflateMember) {
    std::string text = servicesText();
    // Every byte value, each of which the member's text carries as one character.
    for (int b = 0; b < 256; ++b)
        text += static_cast<char>(b);
    std::istringstream in(text);
    std::ostringstream packed;
    ASSERT_EQ(runDeflate(in, packed), 0);

    auto inflated = [&](bool strict) {
        std::istringstream packedIn(packed.str());
        std::ostringstream out;
        std::ostringstream err;
        EXPECT_EQ(runInflate(packedIn, out, strict, err), 0);
        return out.str();
    };
    EXPECT_TRUE(inflated(true) == text);
    const std::string compatible = inflated(false);
    const Variant member =
        lzw::callGlobalVar(u"Inflate", Variant(fromAnsi(packed.str())), Locale::englishUS());
    EXPECT_TRUE(compatible == toAnsi(member.string()));
    // The member's reading differs after a dictionary reset: the reason strict is the default.
    EXPECT_NE(compatible.size(), text.size());
}

} // namespace
} // namespace velkor6::cli
