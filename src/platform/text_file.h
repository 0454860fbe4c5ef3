// The encoding of files meant for people (settings, log, text files read and written whole). On
// Windows they are in the process's code page, as the system's own functions read them. Elsewhere
// a file is UTF-8 when all of it is valid UTF-8 and Windows-1252 otherwise, so that files written
// by editors of either world read right; a file goes back in the encoding it came in, and new
// files are UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace velkor6 {

enum class TextEncoding { Ansi, Utf8, Utf8Mark, Utf16Le, Utf16Be };

// The encoding of bytes without a byte-order mark.
TextEncoding plainTextEncoding(std::string_view bytes);
// The encoding of bytes, a byte-order mark (UTF-8, UTF-16) deciding where there is one.
TextEncoding textEncoding(std::string_view bytes);
// The encoding of a file that does not exist yet.
TextEncoding newTextEncoding();
// The encoding to write text in to a file that was in `read`: the same, unless the system's text is
// UTF-8 and the code page lacks a character of text or its bytes would read as UTF-8 (then UTF-8,
// so that the file reads back as written).
TextEncoding writeEncoding(TextEncoding read, std::u16string_view text);

// The text of bytes in encoding; a byte-order mark of that encoding is skipped.
std::u16string decodeText(std::string_view bytes, TextEncoding encoding);
// The bytes of text in encoding; withMark puts the encoding's byte-order mark in front (appending
// to a file leaves it out).
std::string encodeText(std::u16string_view text, TextEncoding encoding, bool withMark = true);

} // namespace velkor6
