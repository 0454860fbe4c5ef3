// The surface the library's own dialogs are drawn on: Win32 windows, Qt widgets or text on a
// terminal.
//
// The dialog logic describes every form completely as plain data and decides everything; a host
// only draws and reports. How a host behaves:
// - showModal draws the form exactly as described (client size, rectangles and fonts in pixels)
//   and runs a modal loop. It reports each user action to `decide`: a button clicked (also by
//   Space on a focused button when the form does not preview keys), a key pressed without Shift,
//   Ctrl or Alt (letters A to Z in upper case and Space only when the form previews keys; Esc
//   always; Enter unless the focus is in a multi-line field), and the close box. The host never
//   maps an action to a result and never closes the form by itself: it closes the form when
//   `decide` returns true, and then returns that event. An action `decide` refuses changes
//   nothing (a refused close box leaves the form open).
// - Buttons show their captions with "&" marking the access key ("&&" is a literal "&"); the
//   default button has the focus when the form first shows, unless the form has a field: then the
//   field has it, so that typing goes into it.
// - The field starts with its text, takes at most maxLength characters (0: no limit), shows
//   passwordChar for every character when that is not 0, and, with selectAllOnFocus, selects its
//   whole text when it receives the focus. Every reported event carries the field's text and the
//   form's client size at that moment.
// - A resizable form may be resized down to minimumSize; its field grows with the form and its
//   buttons keep their distance to the bottom-right corner.
// - A rich text is an RTF fragment; a host that cannot render RTF shows plainText instead.
// - A systemMessage form may be shown as the system's own message box with systemStyle; the host
//   then reports the chosen button as a click on the button carrying its result.
// - The status window is not modal: showStatus creates it when none is open, otherwise updates
//   it, and shows it without blocking; hideStatus hides it keeping its contents; closeStatus
//   destroys it. serveEvents lets pending user-interface events run once and returns.
// - measureText reports the size a label of that font needs for the text (auto-size), broken
//   into lines at line breaks and, when wrapWidth is above 0, at word boundaries within it.
// - chooseFiles shows the system's (or the toolkit's) file dialog as the request describes and
//   returns the full paths the user picked, or nothing when the dialog was cancelled or could not
//   be shown. chooseFolder does the same with the folder chooser; with allowNewFolder the user may
//   name a folder that does not exist yet (the host returns that path and never creates it: the
//   caller does), otherwise only existing folders are returned.
#pragma once

#include "velkor6/export.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velkor6 {

// The symbol of a message box; the values are the message-box style bits that choose it.
enum class DialogIcon : std::int32_t {
    none = 0,
    critical = 16,
    question = 32,
    exclamation = 48,
    information = 64,
};

struct PixelSize {
    std::int32_t width = 0;
    std::int32_t height = 0;
    friend bool operator==(const PixelSize&, const PixelSize&) = default;
};

struct PixelRect {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;
    friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

struct DialogFont {
    std::u16string name = u"MS Sans Serif";
    std::int32_t pointSize = 8;
    bool bold = false;
    std::uint32_t color = 0; // 0xRRGGBB
};

// A label or a rich-text area.
struct DialogText {
    std::u16string text;
    bool rich = false;        // text is an RTF fragment
    std::u16string plainText; // the text without RTF markup (equal to text when not rich)
    DialogFont font;
    PixelRect rect;
    bool wordWrap = false;
};

struct DialogButton {
    std::u16string caption;  // with "&" marks
    std::int32_t result = 0; // what choosing it returns to the caller (also what
                             // VELKOR6_ANSWERS names it by)
    char16_t hotKey = 0;     // the upper-case letter that presses it; 0: none
    PixelRect rect;
};

// The one-line input or the zoom editor.
struct DialogField {
    std::u16string text;
    std::int32_t maxLength = 0; // 0: no limit
    char16_t passwordChar = 0;  // 0: the text is shown
    bool multiLine = false;
    bool enabled = true;
    bool locked = false; // shown but not editable
    std::u16string toolTip;
    bool selectAllOnFocus = false;
    PixelRect rect;
};

struct DialogForm {
    enum class Kind {
        message,       // headline and detail (frmStdMsg)
        richMessage,   // rich-text body (frmMsgBox)
        answer,        // free button captions (frmAnswer)
        input,         // one-line input (frmInput)
        zoom,          // zoom editor (frmZoom)
        systemMessage, // the system's plain message box; systemStyle holds its style bits
    };
    Kind kind = Kind::message;
    std::u16string title;
    DialogIcon icon = DialogIcon::none;
    PixelRect iconRect; // 32 by 32 where the symbol stands
    PixelSize clientSize;
    bool resizable = false;
    PixelSize minimumSize;
    std::vector<DialogText> texts;     // in reading order
    std::vector<DialogButton> buttons; // left to right
    std::int32_t defaultButton = 0;    // index into buttons
    std::int32_t cancelButton = -1;    // index into buttons; -1: none
    std::optional<DialogField> field;
    bool previewKeys = false; // the form sees letters and Space before its controls
    std::int32_t systemStyle = 0;
};

struct DialogEvent {
    enum class Kind { button, letter, escape, enter, space, closeBox };
    Kind kind = Kind::closeBox;
    std::int32_t button = -1; // button: the one clicked; space: the one with the focus (-1: none)
    char16_t letter = 0;      // letter: 'A' to 'Z'
    std::u16string text;      // the field's text
    PixelSize clientSize;     // the form's client size
};

// Whether an event ends the dialog.
using DialogDecision = std::function<bool(const DialogEvent&)>;

// The status window as it should look now.
struct StatusWindow {
    std::u16string title;
    DialogText message; // rich, centred
    bool counterVisible = false;
    std::int32_t counterValue = 0;
    std::int32_t counterMax = 100;
    PixelRect counterRect;
    PixelSize clientSize;
    std::intptr_t owner = 0; // the caller's window handle; 0: none
    bool topMost = false;
};

// A file-dialog filter: "Text files" and "*.txt;*.log".
struct FileFilter {
    std::u16string description;
    std::u16string pattern; // patterns separated by ";"
    friend bool operator==(const FileFilter&, const FileFilter&) = default;
};

struct FileDialogRequest {
    bool save = false;               // the save dialog, else the open dialog
    std::u16string title;            // "": the host's own title for the kind
    std::vector<FileFilter> filters; // none: every file is shown
    std::int32_t filterIndex = 0;    // the filter shown first, index into filters
    std::u16string startFolder;      // a full path
    std::u16string fileName;         // proposed in the name field
    std::u16string defaultExtension; // without the dot; added to a typed name that has none
    bool fileMustExist = false;      // open: only existing files
    bool pathMustExist = false;      // only names in existing folders
    bool overwritePrompt = false;    // save: confirm replacing an existing file
    bool multiSelect = false;        // open: several files
    bool readOnlyBox = false;        // Win32: show the "open as read-only" check box
};

struct FolderDialogRequest {
    std::u16string title;        // the text above the tree or the window title
    std::u16string startFolder;  // a full path, selected when the chooser opens
    bool editBox = false;        // a field to type the folder's name in
    bool allowNewFolder = false; // the user may choose a folder that does not exist yet
};

class VELKOR6_API DialogHost {
public:
    virtual ~DialogHost() = default;

    // Runs the form modally until decide accepts an event; returns that event.
    virtual DialogEvent showModal(const DialogForm& form, const DialogDecision& decide) = 0;
    virtual PixelSize measureText(std::u16string_view text, const DialogFont& font,
                                  std::int32_t wrapWidth) = 0;

    virtual void showStatus(const StatusWindow& window) = 0;
    virtual void hideStatus() = 0;
    virtual void closeStatus() = 0;
    virtual void serveEvents() = 0;

    // The chosen files as full paths; empty when cancelled.
    virtual std::vector<std::u16string> chooseFiles(const FileDialogRequest& request) = 0;
    // The chosen folder as a full path; empty when cancelled.
    virtual std::u16string chooseFolder(const FolderDialogRequest& request) = 0;
};

} // namespace velkor6
