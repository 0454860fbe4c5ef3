#include "files/file_io.h"

#include "core/text.h"
#include "platform/text_file.h"

namespace velkor6::files {

// A byte-order mark is part of the content here: it stays a character and is written back.
std::u16string readFileStream(FileSystem& fs, std::u16string_view name) {
    const auto bytes = fs.readFile(name);
    return bytes ? decodeText(*bytes, plainTextEncoding(*bytes)) : std::u16string();
}

bool writeFileStream(FileSystem& fs, std::u16string_view name, std::u16string_view text) {
    const auto old = fs.readFile(name);
    const TextEncoding read = old ? plainTextEncoding(*old) : newTextEncoding();
    std::u16string content(text);
    content += u"\r\n";
    return fs.writeFile(name, encodeText(content, writeEncoding(read, content)));
}

bool fileExists(FileSystem& fs, std::u16string_view name) {
    return !name.empty() && fs.isFile(name);
}

bool pathExists(FileSystem& fs, std::u16string_view path) {
    return !path.empty() && fs.isDirectory(path);
}

std::u16string attributeMessage(std::uint32_t forbidden) {
    std::u16string_view sentence;
    if (forbidden & fileattr::readOnly)
        sentence = u"Diese Datei ist schreibgeschützt ";
    else if (forbidden & fileattr::hidden)
        sentence = u"Diese Datei ist versteckt ";
    else if (forbidden & fileattr::system)
        sentence = u"Diese Datei ist eine Systemdatei ";
    else if (forbidden & fileattr::directory)
        sentence = u"Der eingegebene Name zeigt auf ein Verzeichnis ";
    else
        return {};
    std::u16string message(sentence);
    message += u"und kann deshalb nicht geöffnet werden.\n\n";
    message += u"Bitte ändern Sie die Dateiattribute bevor Sie die Datei erneut öffnen.";
    return message;
}

bool checkAttributes(FileSystem& fs, const MessageBoxFunction& show, std::u16string_view name,
                     std::int16_t allowed, std::u16string_view title) {
    const auto status = name.empty() ? std::nullopt : fs.status(name);
    if (!status)
        return false;
    const auto allowedBits = static_cast<std::uint32_t>(static_cast<std::uint16_t>(allowed));
    const std::u16string message = attributeMessage(status->attributes & ~allowedBits);
    if (message.empty())
        return true;
    constexpr std::int32_t criticalOkOnly = 16;
    show(message, title, criticalOkOnly);
    return false;
}

} // namespace velkor6::files
