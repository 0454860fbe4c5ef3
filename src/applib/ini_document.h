// An INI file read and changed with the semantics of the system's private-profile functions, so
// that settings files behave alike on every platform.
#pragma once

#include "platform/text_file.h"
#include "velkor6/platform/settings_files.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velkor6::app {

// The rules: section and key names compare without regard to case and with blanks around them
// dropped; the first matching section, and the first matching key in it, wins; a value loses
// its surrounding blanks and one pair of enclosing quotes ("..." or '...'). A line without "="
// names a key that has no value: a read misses it, a write gives it one. A line starting with
// "[" but without "]" is no header. Comment lines (";...") get no treatment of their own: they
// are keys whose names start with ";". Lines the changes do not touch keep their bytes and line
// ends.
class IniDocument {
public:
    static constexpr std::size_t maxValueLength = SettingsFiles::maxValueLength;

    IniDocument() = default;
    explicit IniDocument(std::string_view bytes);

    std::string bytes() const;
    // The encoding the file was read in, and is written back in (core/text_file.h).
    TextEncoding encoding() const { return encoding_; }

    // nullopt when the section or the key is missing, the key has no "=", or a name is empty.
    std::optional<std::u16string> value(std::u16string_view section, std::u16string_view key) const;

    // Replaces the key's line, or adds "key=value" after the last line of its section, or adds
    // the section at the end of the file. False when the text stays as it was.
    bool set(std::u16string_view section, std::u16string_view key, std::u16string_view value);
    // Removes the key's line; a section left empty stays. False when there was no such key.
    bool remove(std::u16string_view section, std::u16string_view key);

private:
    enum class Kind { Blank, Section, Entry };
    struct Line {
        Line(std::u16string text, std::u16string end);

        std::u16string text; // without its line end
        std::u16string end;  // "\r\n", "\n", "\r", or "" for a last line without one
        // What the line is, worked out once: a file is searched once per key.
        Kind kind = Kind::Blank;
        std::size_t nameStart = 0, nameLength = 0;   // of a section or key
        std::size_t valueStart = 0, valueLength = 0; // of an entry
        bool hasValue = false;                       // an entry with "="
        std::u16string_view name() const {
            return std::u16string_view(text).substr(nameStart, nameLength);
        }
        std::u16string_view value() const {
            return std::u16string_view(text).substr(valueStart, valueLength);
        }
    };

    // Index of the header line of the first matching section.
    std::optional<std::size_t> findSection(std::u16string_view name) const;
    // Index just past the section's last line (the next header or the end).
    std::size_t sectionEnd(std::size_t header) const;
    std::optional<std::size_t> findKey(std::size_t header, std::u16string_view key) const;
    void insertLine(std::size_t at, std::u16string text);

    std::vector<Line> lines_;
    TextEncoding encoding_ = newTextEncoding();
};

// The blanks the profile functions trim: tab, line feed, vertical tab, form feed, carriage
// return, space and the end-of-file mark ^Z.
std::u16string_view trimProfileBlanks(std::u16string_view s);

} // namespace velkor6::app
