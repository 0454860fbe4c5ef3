#include "dialogs/language_chooser.h"

#include "dialogs/message_buttons.h"

#include <algorithm>

namespace velkor6::dialogs {
namespace {

constexpr std::int32_t margin = 12;
constexpr std::int32_t buttonWidth = 200;
constexpr std::int32_t buttonHeight = 25;
constexpr std::int32_t gap = 6;

// "&" in a language's name is no access key.
std::u16string literalAmpersands(std::u16string_view text) {
    std::u16string out;
    for (const char16_t c : text) {
        if (c == u'&')
            out += u'&';
        out += c;
    }
    return out;
}

} // namespace

std::vector<LanguageEntry> languageEntries(const std::vector<std::u16string>& list) {
    std::vector<LanguageEntry> entries;
    for (const std::u16string& text : list) {
        const std::size_t first = text.find(u';');
        const std::size_t second =
            first == std::u16string::npos ? first : text.find(u';', first + 1);
        if (second == std::u16string::npos)
            continue;
        std::int32_t id = 0;
        bool digits = first > 0 && first <= 4;
        for (std::size_t i = 0; digits && i < first; ++i) {
            digits = text[i] >= u'0' && text[i] <= u'9';
            id = id * 10 + (text[i] - u'0');
        }
        if (!digits || id <= 0)
            continue;
        entries.push_back({static_cast<std::int16_t>(id),
                           text.substr(first + 1, second - first - 1), text.substr(second + 1)});
    }
    return entries;
}

DialogForm languageChooserForm(DialogHost& host, const std::vector<LanguageEntry>& languages,
                               std::int16_t current, std::u16string_view cancelCaption) {
    const bool german = current == 1;
    DialogForm form;
    form.kind = DialogForm::Kind::answer;
    form.title = german ? u"Sprache" : u"Language";
    DialogText prompt;
    prompt.text = prompt.plainText =
        german ? u"Bitte w\u00e4hlen Sie Ihre Sprache:" : u"Please choose your language:";
    prompt.wordWrap = true;
    const PixelSize size = host.measureText(prompt.plainText, prompt.font, buttonWidth);
    prompt.rect = {margin, margin, buttonWidth, std::max(size.height, 13)};
    form.texts.push_back(prompt);

    std::int32_t top = prompt.rect.top + prompt.rect.height + margin;
    for (const LanguageEntry& language : languages) {
        DialogButton button;
        button.caption = literalAmpersands(language.name + u" (" + language.extension + u")");
        button.result = language.langid;
        button.rect = {margin, top, buttonWidth, buttonHeight};
        if (language.langid == current)
            form.defaultButton = static_cast<std::int32_t>(form.buttons.size());
        form.buttons.push_back(std::move(button));
        top += buttonHeight + gap;
    }
    DialogButton cancel = captionedButton(std::u16string(cancelCaption), 0);
    cancel.rect = {margin + buttonWidth / 2, top + gap, buttonWidth / 2, buttonHeight};
    form.cancelButton = static_cast<std::int32_t>(form.buttons.size());
    form.buttons.push_back(std::move(cancel));
    form.clientSize = {buttonWidth + 2 * margin, top + gap + buttonHeight + margin};
    return form;
}

std::int16_t chooseLanguage(DialogHost& host, const std::vector<LanguageEntry>& languages,
                            std::int16_t current, std::u16string_view cancelCaption) {
    return static_cast<std::int16_t>(
        runButtonForm(host, languageChooserForm(host, languages, current, cancelCaption)));
}

} // namespace velkor6::dialogs
