#include "ui/win32/file_dialogs.h"

// clang-format off
#include <windows.h>
#include <commctrl.h>
#include <commdlg.h>
#include <ole2.h>
#include <shlobj.h>
#include <shlwapi.h>
// clang-format on

#include "platform/win32/wide.h"

namespace velkor6::ui::win32 {
namespace {

using velkor6::win32::fromWide;
using velkor6::win32::wide;

// Room for the names of a multiple choice: the dialog fails with FNERR_BUFFERTOOSMALL beyond it.
constexpr DWORD fileBufferLength = 32768;

// "description\0pattern\0...\0\0", as the common dialogs take their filters.
std::wstring filterList(const std::vector<FileFilter>& filters) {
    std::wstring list;
    for (const FileFilter& filter : filters) {
        list += wide(filter.description);
        list += L'\0';
        list += wide(filter.pattern);
        list += L'\0';
    }
    list += L'\0';
    return list;
}

// The buffer after a choice: one full path, or (several files) the folder followed by the
// names, each ended by a NUL, the list by a second one.
std::vector<std::u16string> chosenPaths(const std::vector<wchar_t>& buffer) {
    std::vector<std::wstring> pieces;
    for (const wchar_t* p = buffer.data(); *p != L'\0'; p += pieces.back().size() + 1)
        pieces.emplace_back(p);
    std::vector<std::u16string> paths;
    if (pieces.size() == 1) {
        paths.push_back(fromWide(pieces.front()));
        return paths;
    }
    std::wstring folder = pieces.empty() ? std::wstring() : pieces.front();
    if (!folder.empty() && folder.back() != L'\\')
        folder += L'\\';
    for (std::size_t i = 1; i < pieces.size(); ++i)
        paths.push_back(fromWide(folder + pieces[i]));
    return paths;
}

// The new-style chooser needs OLE on the calling thread; a caller that has it keeps it.
class OleScope {
public:
    OleScope() : initialized_(SUCCEEDED(OleInitialize(nullptr))) {}
    OleScope(const OleScope&) = delete;
    OleScope& operator=(const OleScope&) = delete;
    ~OleScope() {
        if (initialized_)
            OleUninitialize();
    }

private:
    bool initialized_;
};

struct ItemList {
    PIDLIST_ABSOLUTE items = nullptr;
    ItemList(const ItemList&) = delete;
    ItemList& operator=(const ItemList&) = delete;
    explicit ItemList(PIDLIST_ABSOLUTE p) : items(p) {}
    ~ItemList() { CoTaskMemFree(items); }
};

std::wstring pathOf(PCIDLIST_ABSOLUTE items) {
    wchar_t path[MAX_PATH] = {};
    return items != nullptr && SHGetPathFromIDListW(items, path) ? std::wstring(path)
                                                                 : std::wstring();
}

struct ChooserState {
    bool focusEditBox = false;
    std::wstring title;
    std::wstring start;
    std::wstring selected; // the folder selected in the tree
    std::wstring typed;    // a name the chooser did not find, when new folders are allowed
    std::wstring edited;   // the edit box's text when the chooser closed
};

std::wstring textOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(
        GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

// Keeps the edit box's last text: not every chooser (Wine's) acts on a typed name itself.
LRESULT CALLBACK editBoxEvent(HWND edit, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                              DWORD_PTR data) {
    if (message == WM_DESTROY) {
        reinterpret_cast<ChooserState*>(data)->edited = textOf(edit);
        RemoveWindowSubclass(edit, editBoxEvent, id);
    }
    return DefSubclassProc(edit, message, wParam, lParam);
}

BOOL CALLBACK findEditBox(HWND child, LPARAM found) {
    wchar_t name[16] = {};
    GetClassNameW(child, name, 16);
    if (lstrcmpiW(name, L"Edit") != 0)
        return TRUE;
    *reinterpret_cast<HWND*>(found) = child;
    return FALSE;
}

int CALLBACK chooserEvent(HWND window, UINT message, LPARAM value, LPARAM data) {
    auto& state = *reinterpret_cast<ChooserState*>(data);
    switch (message) {
    case BFFM_INITIALIZED:
        // The window carries the title as well, as on the other systems, so that it can be told
        // apart from other choosers.
        if (!state.title.empty())
            SetWindowTextW(window, state.title.c_str());
        if (!state.start.empty())
            SendMessageW(window, BFFM_SETSELECTIONW, TRUE,
                         reinterpret_cast<LPARAM>(state.start.c_str()));
        if (HWND edit = nullptr;
            EnumChildWindows(window, findEditBox, reinterpret_cast<LPARAM>(&edit)),
            edit != nullptr) {
            SetWindowSubclass(edit, editBoxEvent, 1, reinterpret_cast<DWORD_PTR>(&state));
            // A new folder is named in the edit box, so typing starts there, over the selected
            // name.
            if (state.focusEditBox)
                PostMessageW(window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(edit), TRUE);
        }
        break;
    case BFFM_SELCHANGED:
        state.selected = pathOf(reinterpret_cast<PCIDLIST_ABSOLUTE>(value));
        break;
    case BFFM_VALIDATEFAILEDW:
        // A name that is no folder yet: the chooser closes and the caller makes it.
        state.typed = value != 0 ? reinterpret_cast<const wchar_t*>(value) : L"";
        return 0;
    default:
        break;
    }
    return 0;
}

} // namespace

std::vector<std::u16string> runFileDialog(HWND owner, const FileDialogRequest& request) {
    const std::wstring filters = filterList(request.filters);
    const std::wstring title = wide(request.title);
    const std::wstring start = wide(request.startFolder);
    const std::wstring extension = wide(request.defaultExtension);
    std::vector<wchar_t> buffer(fileBufferLength, L'\0');
    const std::wstring name = wide(request.fileName);
    if (name.size() < buffer.size())
        std::copy(name.begin(), name.end(), buffer.begin());

    OPENFILENAMEW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = owner;
    dialog.lpstrFilter = request.filters.empty() ? nullptr : filters.c_str();
    dialog.nFilterIndex = static_cast<DWORD>(request.filterIndex + 1);
    dialog.lpstrFile = buffer.data();
    dialog.nMaxFile = fileBufferLength;
    dialog.lpstrInitialDir = start.empty() ? nullptr : start.c_str();
    dialog.lpstrTitle = title.empty() ? nullptr : title.c_str();
    dialog.lpstrDefExt = extension.empty() ? nullptr : extension.c_str();
    // The caller's current directory is the caller's: the dialog never moves it.
    dialog.Flags = OFN_EXPLORER | OFN_NOCHANGEDIR | OFN_ENABLESIZING;
    if (request.fileMustExist)
        dialog.Flags |= OFN_FILEMUSTEXIST;
    if (request.pathMustExist)
        dialog.Flags |= OFN_PATHMUSTEXIST;
    if (request.overwritePrompt)
        dialog.Flags |= OFN_OVERWRITEPROMPT;
    if (request.multiSelect)
        dialog.Flags |= OFN_ALLOWMULTISELECT;
    if (!request.readOnlyBox)
        dialog.Flags |= OFN_HIDEREADONLY;
    const BOOL chosen = request.save ? GetSaveFileNameW(&dialog) : GetOpenFileNameW(&dialog);
    if (!chosen)
        return {};
    buffer.back() = L'\0';
    return chosenPaths(buffer);
}

std::u16string runFolderDialog(HWND owner, const FolderDialogRequest& request) {
    const OleScope ole;
    ChooserState state{request.editBox || request.allowNewFolder,
                       wide(request.title),
                       wide(request.startFolder),
                       {},
                       {}};
    const std::wstring& title = state.title;
    wchar_t display[MAX_PATH] = {};
    BROWSEINFOW browse{};
    browse.hwndOwner = owner;
    browse.pszDisplayName = display;
    browse.lpszTitle = title.empty() ? nullptr : title.c_str();
    // The shell's own "Make New Folder" button would make folders past the library's error
    // display; a new folder is a name typed into the edit box instead.
    browse.ulFlags = BIF_RETURNONLYFSDIRS | BIF_NEWDIALOGSTYLE | BIF_NONEWFOLDERBUTTON;
    if (request.editBox || request.allowNewFolder)
        browse.ulFlags |= BIF_EDITBOX;
    if (request.allowNewFolder)
        browse.ulFlags |= BIF_VALIDATE;
    browse.lpfn = chooserEvent;
    browse.lParam = reinterpret_cast<LPARAM>(&state);
    const ItemList chosen(SHBrowseForFolderW(&browse));
    if (chosen.items == nullptr && state.typed.empty())
        return {};
    const std::wstring path = pathOf(chosen.items);
    std::wstring typed = !state.typed.empty() ? state.typed : state.edited;
    while (!typed.empty() && typed.back() == L' ')
        typed.pop_back();
    while (!typed.empty() && typed.front() == L' ')
        typed.erase(0, 1);
    // The edit box shows the selected folder's name until the user types another.
    const std::wstring_view name = PathFindFileNameW(path.c_str());
    const bool unchanged = typed.empty() || lstrcmpiW(typed.c_str(), display) == 0 ||
                           lstrcmpiW(typed.c_str(), std::wstring(name).c_str()) == 0 ||
                           lstrcmpiW(typed.c_str(), path.c_str()) == 0;
    if (unchanged)
        return fromWide(path);
    if (!PathIsRelativeW(typed.c_str()))
        return fromWide(typed);
    std::wstring folder = !state.selected.empty() ? state.selected : path;
    if (!folder.empty() && folder.back() != L'\\')
        folder += L'\\';
    return fromWide(folder + typed);
}

} // namespace velkor6::ui::win32
