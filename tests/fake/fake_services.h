// Scriptable stand-ins for the small platform services: environment, input, user interface
// and shell. Each records what the library asked so that tests can check it.
#pragma once

#include "velkor6/platform/environment.h"
#include "velkor6/platform/fonts.h"
#include "velkor6/platform/input_state.h"
#include "velkor6/platform/shell.h"
#include "velkor6/platform/ui.h"

#include <deque>
#include <map>
#include <string>
#include <vector>

namespace velkor6::fake {

class FakeEnvironment final : public Environment {
public:
    // Special folders of a Windows installation for the user "Test" on drive C:.
    FakeEnvironment();

    std::u16string specialFolder(std::int32_t csidl) override;
    bool userIsAdmin() override { return admin_; }
    std::optional<std::u16string> variable(std::u16string_view name) override;
    std::u16string commandLine() override { return commandLine_; }

    void setSpecialFolder(std::int32_t csidl, std::u16string path) { folders_[csidl] = path; }
    void setAdmin(bool admin) { admin_ = admin; }
    void setVariable(std::u16string name, std::u16string value);
    void setCommandLine(std::u16string line) { commandLine_ = std::move(line); }
    const std::map<std::int32_t, std::u16string>& specialFolders() const { return folders_; }

private:
    std::map<std::int32_t, std::u16string> folders_;
    std::map<std::u16string, std::u16string> variables_; // names upper-cased
    std::u16string commandLine_ = u"\"C:\\Program Files\\Test\\test.exe\"";
    bool admin_ = false;
};

class FakeFonts final : public Fonts {
public:
    std::vector<std::u16string> families() override { return families_; }
    void setFamilies(std::vector<std::u16string> names) { families_ = std::move(names); }

private:
    std::vector<std::u16string> families_;
};

class FakeInput final : public InputState {
public:
    std::int16_t asyncKeyState(std::int32_t virtualKey) override;
    bool mouseButtonsSwapped() override { return swapped_; }

    void setDown(std::int32_t virtualKey, bool down);
    // The key goes down at its n-th query from now (1 = the next one) and stays down.
    void pressAt(std::int32_t virtualKey, int query);
    void setMouseButtonsSwapped(bool swapped) { swapped_ = swapped; }
    int queries(std::int32_t virtualKey) const;

private:
    struct Key {
        bool down = false;
        bool pressedSinceQuery = false;
        int queries = 0;
        int pressAt = 0; // 0: not scheduled
    };
    std::map<std::int32_t, Key> keys_;
    bool swapped_ = false;
};

class FakeUi final : public UserInterface {
public:
    struct Message {
        std::u16string text;
        std::u16string title;
        std::int32_t style = 0;
        std::int32_t result = 0;
    };

    std::int32_t messageBox(std::u16string_view text, std::u16string_view title,
                            std::int32_t style) override;
    void serveEvents() override { ++eventsServed_; }

    // The next message boxes are answered with these results, in order; after them the default
    // button answers.
    void answer(std::int32_t result) { answers_.push_back(result); }
    const std::vector<Message>& messages() const { return messages_; }
    int eventsServed() const { return eventsServed_; }

private:
    std::deque<std::int32_t> answers_;
    std::vector<Message> messages_;
    int eventsServed_ = 0;
};

class FakeShell final : public Shell {
public:
    struct Execution {
        std::u16string verb, file, parameters, directory;
        std::int32_t showCommand = 0;
    };

    std::int32_t execute(std::u16string_view verb, std::u16string_view file,
                         std::u16string_view parameters, std::u16string_view directory,
                         std::int32_t showCommand) override;
    bool startWithFile(std::u16string_view command, std::u16string_view file,
                       std::int32_t windowStyle) override;

    // What execute answers (above 32: success).
    void setExecuteResult(std::int32_t result) { executeResult_ = result; }
    const std::vector<Execution>& executions() const { return executions_; }
    struct Start {
        std::u16string command, file;
    };
    const std::vector<Start>& started() const { return started_; }

private:
    std::int32_t executeResult_ = 42;
    std::vector<Execution> executions_;
    std::vector<Start> started_;
};

} // namespace velkor6::fake
