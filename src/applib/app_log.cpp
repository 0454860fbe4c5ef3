#include "applib/app_log.h"

#include "core/text.h"
#include "platform/ansi.h"
#include "platform/text_file.h"

#include <algorithm>

namespace velkor6 {
namespace app {
namespace {

constexpr std::size_t printZone = 14;

void appendTwoDigits(std::u16string& out, int n) {
    out += static_cast<char16_t>(u'0' + n / 10 % 10);
    out += static_cast<char16_t>(u'0' + n % 10);
}

} // namespace

std::u16string logLine(const DateParts& now, std::u16string_view message) {
    std::u16string line;
    appendTwoDigits(line, now.day);
    line += u'.';
    appendTwoDigits(line, now.month);
    line += u'.';
    appendTwoDigits(line, now.year / 100);
    appendTwoDigits(line, now.year % 100);
    line += u' ';
    appendTwoDigits(line, now.hour);
    line += u':';
    appendTwoDigits(line, now.minute);
    line += u':';
    appendTwoDigits(line, now.second);
    line.append(printZone - line.size() % printZone, u' ');
    line += message;
    line += u"\r\n";
    return line;
}

std::u16string errorText(std::int32_t number, std::u16string_view description,
                         std::u16string_view source) {
    return u"ERR=" + fromUtf8(std::to_string(number)) + u" '" + std::u16string(description) +
           u"' (Source=" + std::u16string(source) + u")";
}

// An entry goes in the encoding the log is in. ASCII reads alike in both encodings a log can have,
// so only an entry with other characters needs to look at the file. A Windows-1252 log stays so:
// an entry in UTF-8 would leave a file that is neither.
std::string entryBytes(FileSystem& fs, std::u16string_view log, std::u16string_view entry) {
    if (std::all_of(entry.begin(), entry.end(), [](char16_t c) { return c < 0x80; }))
        return toAnsi(entry);
    const auto existing = fs.readFile(log);
    return encodeText(entry, existing ? plainTextEncoding(*existing) : newTextEncoding(), false);
}

} // namespace app

} // namespace velkor6
