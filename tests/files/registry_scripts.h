// Registry scripts shared by the registry tests.
#pragma once

#include <string>
#include <string_view>

namespace velkor6::regtest {

// The older format: ANSI text (the umlauts are Windows-1252 bytes), text data in ANSI bytes.
inline std::string ansiScript() {
    return "REGEDIT4\r\n"
           "\r\n"
           "; written by hand\r\n"
           "[HKEY_CURRENT_USER\\Software\\Velkor Test]\r\n"
           "@=\"default text\"\r\n"
           "\"Text\"=\"say \\\"hi\\\" C:\\\\temp\"\r\n"
           "\"Empty\"=\"\"\r\n"
           "\"Number\"=\"42\"\r\n"
           "\"Decimal\"=\"2,5\"\r\n"
           "\"Word\"=\"abc\"\r\n"
           "\"Umlaut\"=\"Gr\xFC\xDF\x65\"\r\n"
           "\"Dword\"=dword:ffffffff\r\n"
           "\"Small\"=dword:0000002a\r\n"
           "\"Short\"=hex(4):ff,ff\r\n"
           "\"Big\"=hex(5):01,00,00,00\r\n"
           "\"Bin\"=hex:41,42,\\\r\n"
           "  00,43\r\n"
           "\"Expand\"=hex(2):25,54,45,4d,50,25,00\r\n"
           "\"Multi\"=hex(7):61,00,62,00,00\r\n"
           "\"Qword\"=hex(b):01,00,00,00,00,00,00,00\r\n"
           "\"Long1023\"=\"" +
           std::string(1023, 'x') + "\"\r\n\"Long1024\"=\"" + std::string(1024, 'x') +
           "\"\r\n"
           "[HKCU\\Software\\Velkor Test\\Tree\\alpha\\One]\r\n"
           "[HKCU\\Software\\Velkor Test\\Tree\\alpha\\Two]\r\n"
           "[HKCU\\Software\\Velkor Test\\Pair\\beta]\r\n"
           "[HKCU\\Software\\Velkor Test\\Pair\\Alpha]\r\n"
           "[HKCU\\Software\\Velkor Test\\Leaf]\r\n"
           "[HKCU\\Software\\Velkor Test\\Piped\\a|b]\r\n"
           "[HKCU\\Software\\Velkor Test\\Piped\\c]\r\n"
           "[HKCR\\.vkr]\r\n"
           "@=\"velkor.file\"\r\n";
}

// As the registry editor writes the newer format: UTF-16 LE with a byte-order mark.
inline std::string utf16Script(std::u16string_view text) {
    std::string bytes = "\xFF\xFE";
    for (char16_t c : text) {
        bytes.push_back(static_cast<char>(c & 0xFF));
        bytes.push_back(static_cast<char>(c >> 8));
    }
    return bytes;
}

} // namespace velkor6::regtest
