#include "fake/fake_services.h"

#include "core/text.h"
#include "velkor6/enums.h"

namespace velkor6::fake {

FakeEnvironment::FakeEnvironment() {
    const std::u16string profile = u"C:\\Users\\Test";
    folders_ = {
        {CSIDL_DESKTOP, profile + u"\\Desktop"},
        {CSIDL_DESKTOPDIRECTORY, profile + u"\\Desktop"},
        {CSIDL_PERSONAL, profile + u"\\Documents"},
        {CSIDL_MYPICTURES, profile + u"\\Pictures"},
        {CSIDL_PROFILE, profile},
        {CSIDL_APPDATA, profile + u"\\AppData\\Roaming"},
        {CSIDL_LOCAL_APPDATA, profile + u"\\AppData\\Local"},
        {CSIDL_TEMPLATES, profile + u"\\AppData\\Roaming\\Microsoft\\Windows\\Templates"},
        {CSIDL_COMMON_APPDATA, u"C:\\ProgramData"},
        {CSIDL_WINDOWS, u"C:\\Windows"},
        {CSIDL_SYSTEM, u"C:\\Windows\\system32"},
        {CSIDL_SYSTEMX86, u"C:\\Windows\\SysWOW64"},
        {CSIDL_FONTS, u"C:\\Windows\\Fonts"},
        {38, u"C:\\Program Files"}, // the system's own number for the program files
        {CSIDL_PROGRAM_FILESX86, u"C:\\Program Files (x86)"},
        {CSIDL_PROGRAM_FILES_COMMON, u"C:\\Program Files\\Common Files"},
        {CSIDL_PROGRAM_FILES_COMMONX86, u"C:\\Program Files (x86)\\Common Files"},
    };
}

std::u16string FakeEnvironment::specialFolder(std::int32_t csidl) {
    const auto it = folders_.find(csidl);
    return it == folders_.end() ? std::u16string() : it->second;
}

std::optional<std::u16string> FakeEnvironment::variable(std::u16string_view name) {
    const auto it = variables_.find(upperCase(name));
    if (it == variables_.end())
        return std::nullopt;
    return it->second;
}

void FakeEnvironment::setVariable(std::u16string name, std::u16string value) {
    variables_[upperCase(name)] = std::move(value);
}

std::int16_t FakeInput::asyncKeyState(std::int32_t virtualKey) {
    Key& k = keys_[virtualKey];
    ++k.queries;
    if (k.pressAt != 0 && k.queries >= k.pressAt) {
        k.pressAt = 0;
        if (!k.down)
            k.pressedSinceQuery = true;
        k.down = true;
    }
    std::uint16_t state = k.down ? 0x8000 : 0;
    if (k.pressedSinceQuery)
        state |= 1;
    k.pressedSinceQuery = false;
    return static_cast<std::int16_t>(state);
}

void FakeInput::setDown(std::int32_t virtualKey, bool down) {
    Key& k = keys_[virtualKey];
    if (down && !k.down)
        k.pressedSinceQuery = true;
    k.down = down;
}

void FakeInput::pressAt(std::int32_t virtualKey, int query) {
    Key& k = keys_[virtualKey];
    k.pressAt = k.queries + query;
}

int FakeInput::queries(std::int32_t virtualKey) const {
    const auto it = keys_.find(virtualKey);
    return it == keys_.end() ? 0 : it->second.queries;
}

std::int32_t FakeUi::messageBox(std::u16string_view text, std::u16string_view title,
                                std::int32_t style) {
    std::int32_t result = defaultButtonResult(style);
    if (!answers_.empty()) {
        result = answers_.front();
        answers_.pop_front();
    }
    messages_.push_back({std::u16string(text), std::u16string(title), style, result});
    return result;
}

std::int32_t FakeShell::execute(std::u16string_view verb, std::u16string_view file,
                                std::u16string_view parameters, std::u16string_view directory,
                                std::int32_t showCommand) {
    executions_.push_back({std::u16string(verb), std::u16string(file), std::u16string(parameters),
                           std::u16string(directory), showCommand});
    return executeResult_;
}

bool FakeShell::startWithFile(std::u16string_view command, std::u16string_view file, std::int32_t) {
    started_.push_back({std::u16string(command), std::u16string(file)});
    return true;
}

} // namespace velkor6::fake
