#include "prompt.h"

#include <cstdlib>
#include <iostream>

namespace velkor6::cli {

std::filesystem::path historyFile() {
    return {};
}

// The console edits the line and recalls earlier ones itself.
class Prompt::Editor {};

Prompt::Prompt(std::vector<std::string>, std::filesystem::path) {}

Prompt::~Prompt() = default;

std::optional<std::string> Prompt::readLine() {
    std::cout << "velkor6> " << std::flush;
    std::string line;
    if (!std::getline(std::cin, line)) {
        std::cout << '\n';
        return std::nullopt;
    }
    if (!line.empty() && line.back() == '\r')
        line.pop_back();
    return line;
}

} // namespace velkor6::cli
