// The text host: what it writes and how it answers.
#include "ui/headless/headless_host.h"

#include <gtest/gtest.h>
#include <sstream>

namespace velkor6 {
namespace {

using Kind = DialogEvent::Kind;

DialogForm yesNoCancel() {
    DialogForm form;
    form.title = u"Save";
    form.icon = DialogIcon::question;
    DialogText text;
    text.plainText = u"Save changes?";
    form.texts = {text};
    form.buttons = {
        {u"&Yes", 6, u'Y', {}}, {u"&No", 7, u'N', {}}, {u"Save && &Close", 2, u'C', {}}};
    form.cancelButton = 2;
    return form;
}

// Accepts everything but letters, and notes what it saw.
struct Recorder {
    std::vector<DialogEvent> seen;
    DialogDecision decide() {
        return [this](const DialogEvent& e) {
            seen.push_back(e);
            return e.kind != Kind::letter;
        };
    }
};

TEST(HeadlessHost, AnswersInOrderThenAsEscWould) {
    std::istringstream in;
    std::ostringstream out;
    ui::HeadlessHost host({"7", "text:secret code", "9"}, false, in, out);
    Recorder r;
    const DialogForm form = yesNoCancel();

    EXPECT_EQ(host.showModal(form, r.decide()).button, 1);
    EXPECT_EQ(out.str(),
              "--- Save ---\n(question)\nSave changes?\n  6 = Yes [Y] (default)\n  7 = No [N]\n"
              "  2 = Save & Close [C]\n");

    DialogForm input;
    input.buttons = {{u"OK", 1, 0, {}}, {u"Cancel", 2, 0, {}}};
    input.field = DialogField{};
    input.field->maxLength = 6;
    const DialogEvent typed = host.showModal(input, r.decide());
    EXPECT_EQ(typed.kind, Kind::button);
    EXPECT_EQ(typed.button, 0);
    EXPECT_EQ(typed.text, u"secret");

    EXPECT_EQ(host.showModal(form, r.decide()).kind, Kind::escape); // no button gives 9
    EXPECT_EQ(host.showModal(form, r.decide()).kind, Kind::escape); // answers used up
}

TEST(HeadlessHost, AsksOnTheTerminalWhenThereIsOne) {
    std::istringstream in("?\nQ\n\n");
    std::ostringstream out;
    ui::HeadlessHost host({}, true, in, out);
    Recorder r;
    const DialogEvent e = host.showModal(yesNoCancel(), r.decide());
    EXPECT_EQ(e.kind, Kind::enter); // "?" is not an answer, "Q" a refused letter
    ASSERT_EQ(r.seen.size(), 2u);
    EXPECT_EQ(r.seen[0].letter, u'Q');
    // End of input: as Esc.
    EXPECT_EQ(host.showModal(yesNoCancel(), r.decide()).kind, Kind::escape);
}

} // namespace
} // namespace velkor6
