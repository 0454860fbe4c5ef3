// The library's own dialogs and the status window: the `lib` members and their rows.
#include "core/convert.h"
#include "dialogs/answer_dialog.h"
#include "dialogs/input_dialog.h"
#include "dialogs/message_buttons.h"
#include "dialogs/rich_message.h"
#include "dialogs/status_window.h"
#include "dialogs/std_message.h"
#include "dialogs/zoom_dialog.h"
#include "lib/applib_argument.h"
#include "lib/dispatch_object.h"
#include "lib/lib_members.h"
#include "velkor6/vb_error.h"

#include <array>

namespace velkor6 {
namespace {

// The dialog drivers trap their errors; a failed call gives the neutral result.
template <class F, class R>
R trapped(F f, R neutral) {
    try {
        return f();
    } catch (const std::exception&) {
        return neutral;
    }
}

constexpr std::int32_t questionYesNo = 36;
constexpr std::int32_t secondButtonDefault = 256;

} // namespace

std::int32_t lib::vkrMsgBox(std::u16string_view Prompt, std::u16string_view Detail,
                            std::int32_t Buttons, std::u16string_view Title,
                            std::int32_t PromptColor, std::int16_t FontSize, bool FontBold) {
    dialogs::StdMessage m{std::u16string(Prompt),
                          std::u16string(Detail),
                          Buttons,
                          std::u16string(Title),
                          PromptColor,
                          FontSize,
                          FontBold};
    return trapped([&] { return dialogs::showStdMessage(module(), m); }, 0);
}

std::int32_t lib::vkrExtMsgBox(std::u16string_view sPrompt, std::int32_t lButtons,
                               std::u16string_view sTitle, std::int32_t lWidthInTwips,
                               std::int32_t lHeightInTwips) {
    dialogs::RichMessage m{std::u16string(sPrompt), lButtons, std::u16string(sTitle), lWidthInTwips,
                           lHeightInTwips};
    return trapped([&] { return dialogs::showRichMessage(module(), m); }, 0);
}

bool lib::vkrAsk(const Variant& sQuestion, const Variant& vTitle, bool bDefaultNo) {
    return trapped(
        [&] {
            const std::u16string title = vTitle.isMissing() ? std::u16string(dialogs::libraryTitle)
                                                            : toString(vTitle, locale());
            const std::int32_t style = questionYesNo | (bDefaultNo ? secondButtonDefault : 0);
            return dialogs::showSystemMessage(module(), toString(sQuestion, locale()), title,
                                              style) == dlgresult::yes;
        },
        false);
}

bool lib::vkrExtAsk(const Variant& sQuestion, std::u16string_view sTitle,
                    std::int32_t lWidthInTwips, std::int32_t lHeightInTwips, bool bDefaultNo) {
    return trapped(
        [&] {
            const std::int32_t style = questionYesNo | (bDefaultNo ? secondButtonDefault : 0);
            return vkrExtMsgBox(toString(sQuestion, locale()), style, sTitle, lWidthInTwips,
                                lHeightInTwips) == dlgresult::yes;
        },
        false);
}

void lib::vkrErrorMsg(std::int32_t lError, std::u16string_view sErrorDesc,
                      std::u16string_view sErrorSource) {
    dialogs::showError(module(), lError, sErrorDesc, sErrorSource);
}

std::int16_t lib::vkrGetAnswer(std::u16string_view Prompt, std::u16string_view Detail,
                               std::u16string_view Title, const VariantArray& Buttons) {
    return trapped(
        [&] {
            std::vector<std::u16string> captions;
            for (const Variant& caption : Buttons.items)
                captions.push_back(toString(caption, locale()));
            return dialogs::showAnswer(*module().platform().dialogs, Prompt, Detail, Title,
                                       captions);
        },
        std::int16_t{0});
}

std::int32_t lib::vkrInputValue(std::u16string_view Prompt, std::u16string_view Title,
                                std::u16string& value, std::u16string_view defaultValue) {
    return trapped(
        [&] { return dialogs::showInput(module(), Prompt, Title, value, defaultValue, false); }, 0);
}

std::int32_t lib::vkrInputCode(std::u16string_view Prompt, std::u16string_view Title,
                               std::u16string& value, std::u16string_view defaultValue) {
    return trapped(
        [&] { return dialogs::showInput(module(), Prompt, Title, value, defaultValue, true); }, 0);
}

void lib::vkrZoomTextBox(applib& oApp, const ObjectRef& Source, std::u16string_view Description,
                         bool IgnoreAttributes) {
    if (!Source || !dialogs::zoomableType(Source->typeName()))
        throw VbError(vberr::invalidCall);
    trapped(
        [&] {
            const dialogs::TwipsSize stored{oApp.longValue(u"ZoomWindow", u"Width"),
                                            oApp.longValue(u"ZoomWindow", u"Height")};
            const dialogs::TwipsSize closed =
                dialogs::zoomText(module(), Source, Description, IgnoreAttributes, stored);
            oApp.longValueLet(u"ZoomWindow", u"Width", closed.width);
            oApp.longValueLet(u"ZoomWindow", u"Height", closed.height);
            return true;
        },
        false);
}

void lib::vkrSendMessage(const Variant& Prompt, const Variant& Title, const Variant& ShowCounter,
                         const Variant& CurCount, const Variant& MaxCount, std::int32_t ParentHwnd,
                         const Variant& WidthInTwips, const Variant& HeightInTwips,
                         const Variant& MsgTopInTwips, bool NoEvents, bool OpenAsTopMost) {
    dialogs::sendMessage(module(),
                         {Prompt, Title, ShowCounter, CurCount, MaxCount, ParentHwnd, WidthInTwips,
                          HeightInTwips, MsgTopInTwips, NoEvents, OpenAsTopMost});
}

void lib::vkrClearMessage() {
    dialogs::clearMessage(module());
}

void lib::vkrHideMessage() {
    dialogs::hideMessage(module());
}

void lib::vkrShowWaitLet(const ObjectRef& oSource, bool value) {
    constexpr std::int16_t hourglass = 11, defaultPointer = 0;
    trapped(
        [&] {
            if (!oSource)
                throw VbError(vberr::objectNotSet);
            std::array<Variant, 1> pointer{Variant(value ? hourglass : defaultPointer)};
            oSource->call(u"MousePointer", CallKind::PropertyLet, pointer);
            return true;
        },
        false);
}

} // namespace velkor6

namespace velkor6::dispatch {
namespace {

using T = VarType;

Param missing(std::u16string name) {
    return optional(std::move(name), T::Variant, Variant::missing());
}

} // namespace

void addDialogMembers(Table<lib>& t) {
    t.push_back(
        {66,
         u"vkrMsgBox",
         CallKind::Method,
         {required(u"Prompt", T::String), required(u"Detail", T::String),
          optional(u"Buttons", T::Long, std::int32_t{0}), optional(u"Title", T::String, u""),
          optional(u"PromptColor", T::Long, std::int32_t{0}),
          optional(u"FontSize", T::Integer, std::int16_t{10}),
          optional(u"FontBold", T::Boolean, true)},
         T::Long,
         [](lib& l, Args& a) -> Variant {
             return l.vkrMsgBox(a.str(0), a.str(1), a.i32(2), a.str(3), a.i32(4), a.i16(5), a.b(6));
         },
         u"Shows a bold headline over a detail text with the buttons of a message-box style; "
         u"returns the pressed button's code.",
         u"Buttons: AND 7 the set (5 retry/cancel, 4 yes/no, 3 yes/no/cancel, 2 "
         u"abort/retry/ignore, 1 OK/cancel, else OK), 16/32/48/64 the symbol, 256/512/768 the "
         u"default button. Captions follow the current language; Esc presses the set's cancel "
         u"button; the close box gives 0. PromptColor is a console colour 0 to 15. An empty "
         u"Title gives \"velkor6\"."});
    t.push_back(
        {67,
         u"vkrExtMsgBox",
         CallKind::Method,
         {required(u"sPrompt", T::String), optional(u"lButtons", T::Long, std::int32_t{0}),
          optional(u"sTitle", T::String, u""), optional(u"lWidthInTwips", T::Long, std::int32_t{0}),
          optional(u"lHeightInTwips", T::Long, std::int32_t{0})},
         T::Long,
         [](lib& l, Args& a) -> Variant {
             return l.vkrExtMsgBox(a.str(0), a.i32(1), a.str(2), a.i32(3), a.i32(4));
         },
         u"Shows an RTF fragment with the buttons of a message-box style; returns the pressed "
         u"button's code.",
         u"\"text|width|height\" sizes the box in twips; lWidthInTwips and lHeightInTwips above "
         u"0 take precedence."});
    t.push_back({68,
                 u"vkrAsk",
                 CallKind::Method,
                 {required(u"sQuestion", T::Variant), missing(u"vTitle"),
                  optional(u"bDefaultNo", T::Boolean, false)},
                 T::Boolean,
                 [](lib& l, Args& a) -> Variant { return l.vkrAsk(a[0], a[1], a.b(2)); },
                 u"Asks a yes/no question in the plain system message box; True for yes.",
                 u"bDefaultNo makes No the default button."});
    t.push_back({69,
                 u"vkrExtAsk",
                 CallKind::Method,
                 {required(u"sQuestion", T::Variant), optional(u"sTitle", T::String, u""),
                  optional(u"lWidthInTwips", T::Long, std::int32_t{0}),
                  optional(u"lHeightInTwips", T::Long, std::int32_t{0}),
                  optional(u"bDefaultNo", T::Boolean, false)},
                 T::Boolean,
                 [](lib& l, Args& a) -> Variant {
                     return l.vkrExtAsk(a[0], a.str(1), a.i32(2), a.i32(3), a.b(4));
                 },
                 u"Asks a yes/no question through vkrExtMsgBox; True for yes.",
                 u""});
    t.push_back({70,
                 u"vkrErrorMsg",
                 CallKind::Method,
                 {required(u"lError", T::Long), required(u"sErrorDesc", T::String),
                  required(u"sErrorSource", T::String)},
                 T::Empty,
                 [](lib& l, Args& a) -> Variant {
                     l.vkrErrorMsg(a.i32(0), a.str(1), a.str(2));
                     return {};
                 },
                 u"Shows \"Runtime error 'n':\" over the description, titled with the source.",
                 u"A negative number shows as &H and eight hexadecimal digits. Never raises."});
    t.push_back({71,
                 u"vkrGetAnswer",
                 CallKind::Method,
                 {required(u"Prompt", T::String), required(u"Detail", T::String),
                  required(u"Title", T::String), byRef(u"Buttons", T::Array | T::Variant)},
                 T::Integer,
                 [](lib& l, Args& a) -> Variant {
                     return l.vkrGetAnswer(a.str(0), a.str(1), a.str(2), a[3].array());
                 },
                 u"Shows one button per caption of Buttons; returns the pressed button's "
                 u"1-based number, 0 for Esc.",
                 u"The letter after \"&\" in a caption presses its button."});
    t.push_back({72,
                 u"vkrInputValue",
                 CallKind::Method,
                 {required(u"Prompt", T::String), required(u"Title", T::String),
                  output(u"value", T::String), optional(u"default", T::String, u"")},
                 T::Long,
                 [](lib& l, Args& a) -> Variant {
                     return l.vkrInputValue(a.str(0), a.str(1), a.strRef(2), a.str(3));
                 },
                 u"Asks for one line of text: 1 with the text in value on OK, 2 on cancel.",
                 u"A prompt \"##|text\" limits the input to ## characters. Cancel leaves value "
                 u"unchanged."});
    t.push_back({73,
                 u"vkrInputCode",
                 CallKind::Method,
                 {required(u"Prompt", T::String), required(u"Title", T::String),
                  output(u"value", T::String), optional(u"default", T::String, u"")},
                 T::Long,
                 [](lib& l, Args& a) -> Variant {
                     return l.vkrInputCode(a.str(0), a.str(1), a.strRef(2), a.str(3));
                 },
                 u"As vkrInputValue, with the typed characters shown as \"*\".",
                 u""});
    t.push_back(
        {74,
         u"vkrZoomTextBox",
         CallKind::Method,
         {required(u"oApp", T::Object), required(u"Source", T::Object),
          optional(u"Description", T::String, u""),
          optional(u"IgnoreAttributes", T::Boolean, false)},
         T::Empty,
         [](lib& l, Args& a) -> Variant {
             l.vkrZoomTextBox(applibArgument(a[0]), a[1].object(), a.str(2), a.b(3));
             return {};
         },
         u"Edits the Text of a control in a large resizable window; OK writes it back.",
         u"Sources: TextBox, ComboBox, Node, ListItem, ListBox, QSCombo, QZCombo; others raise "
         u"error 5. Unless IgnoreAttributes, the editor takes over Enabled, Locked and "
         u"ToolTipText. Description is the window's caption. The window size is kept in section "
         u"ZoomWindow of oApp's settings."});
    t.push_back(
        {75,
         u"vkrSendMessage",
         CallKind::Method,
         {missing(u"Prompt"), missing(u"Title"), missing(u"ShowCounter"), missing(u"CurCount"),
          missing(u"MaxCount"), optional(u"ParentHwnd", T::Long, std::int32_t{0}),
          missing(u"WidthInTwips"), missing(u"HeightInTwips"), missing(u"MsgTopInTwips"),
          optional(u"NoEvents", T::Boolean, false), optional(u"OpenAsTopMost", T::Boolean, true)},
         T::Empty,
         [](lib& l, Args& a) -> Variant {
             l.vkrSendMessage(a[0], a[1], a[2], a[3], a[4], a.i32(5), a[6], a[7], a[8], a.b(9),
                              a.b(10));
             return {};
         },
         u"Opens or updates the status window: a centred message and a progress bar.",
         u"A missing argument leaves its part of the window as it stands; a value that does not "
         u"convert is skipped. NoEvents skips serving pending events."});
    t.push_back({76,
                 u"vkrClearMessage",
                 CallKind::Method,
                 {},
                 T::Empty,
                 [](lib& l, Args&) -> Variant {
                     l.vkrClearMessage();
                     return {};
                 },
                 u"Closes the status window; the next vkrSendMessage starts afresh.",
                 u""});
    t.push_back({77,
                 u"vkrHideMessage",
                 CallKind::Method,
                 {},
                 T::Empty,
                 [](lib& l, Args&) -> Variant {
                     l.vkrHideMessage();
                     return {};
                 },
                 u"Hides the status window, keeping its contents.",
                 u""});
    t.push_back({78,
                 u"vkrShowWait",
                 CallKind::PropertyLet,
                 {required(u"oSource", T::Object), required(u"value", T::Boolean)},
                 T::Empty,
                 [](lib& l, Args& a) -> Variant {
                     l.vkrShowWaitLet(a[0].object(), a.b(1));
                     return {};
                 },
                 u"Sets oSource's MousePointer to the hourglass (True) or the default (False).",
                 u""});
}

} // namespace velkor6::dispatch
