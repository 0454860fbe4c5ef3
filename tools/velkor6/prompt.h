// The prompt at a terminal: line editing, a history kept between sessions and Tab completion of
// names (libedit); on Windows the console's own line editing.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace velkor6::cli {

// "$XDG_STATE_HOME/velkor6/history", by default under ~/.local/state; empty without a home.
std::filesystem::path historyFile();

class Prompt {
public:
    // Reads the history file when there is one; Tab completes the given names.
    Prompt(std::vector<std::string> names, std::filesystem::path history);
    ~Prompt();
    Prompt(const Prompt&) = delete;
    Prompt& operator=(const Prompt&) = delete;

    // The next line without its line end, entered into the history; nullopt at the end of input.
    std::optional<std::string> readLine();

    class Editor;

private:
    std::unique_ptr<Editor> editor_;
};

} // namespace velkor6::cli
