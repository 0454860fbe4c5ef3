// The language chooser: one button per language whose resource library is installed, stacked,
// and Cancel under them; the current language's button is the default.
#pragma once

#include "velkor6/platform/dialog_host.h"

#include <cstdint>
#include <string>
#include <vector>

namespace velkor6::dialogs {

struct LanguageEntry {
    std::int16_t langid = 0;
    std::u16string name;
    std::u16string extension;
};

// The entries of "langid;name;extension" texts (getLanguagesList); texts without a language
// number above 0 are left out.
std::vector<LanguageEntry> languageEntries(const std::vector<std::u16string>& list);

// The form in the current language (German for 1, English otherwise); each language's button
// returns its number, Cancel (cancelCaption) 0.
DialogForm languageChooserForm(DialogHost& host, const std::vector<LanguageEntry>& languages,
                               std::int16_t current, std::u16string_view cancelCaption);
// The number of the language chosen; 0 for Cancel, Esc and the close box.
std::int16_t chooseLanguage(DialogHost& host, const std::vector<LanguageEntry>& languages,
                            std::int16_t current, std::u16string_view cancelCaption);

} // namespace velkor6::dialogs
