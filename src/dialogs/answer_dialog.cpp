#include "dialogs/answer_dialog.h"

#include "dialogs/message_buttons.h"
#include "dialogs/message_layout.h"

namespace velkor6::dialogs {

DialogForm answerForm(DialogHost& host, std::u16string_view prompt, std::u16string_view detail,
                      std::u16string_view title, const std::vector<std::u16string>& captions) {
    DialogForm form;
    form.kind = DialogForm::Kind::answer;
    form.title = std::u16string(title);
    form.icon = DialogIcon::question;
    form.previewKeys = true;
    DialogText headline;
    headline.text = headline.plainText = std::u16string(prompt);
    headline.font.pointSize = 10;
    headline.font.bold = true;
    DialogText detailText;
    detailText.text = detailText.plainText = std::u16string(detail);
    form.texts = {std::move(headline), std::move(detailText)};
    for (std::size_t i = 0; i < captions.size(); ++i)
        form.buttons.push_back(captionedButton(captions[i], static_cast<std::int32_t>(i + 1)));
    form.cancelButton = -1; // Esc leaves the result at 0
    layOutLabelForm(host, form);
    return form;
}

std::int16_t showAnswer(DialogHost& host, std::u16string_view prompt, std::u16string_view detail,
                        std::u16string_view title, const std::vector<std::u16string>& captions) {
    return static_cast<std::int16_t>(
        runButtonForm(host, answerForm(host, prompt, detail, title, captions)));
}

} // namespace velkor6::dialogs
