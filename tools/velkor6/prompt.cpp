#include "prompt.h"

#include "completion.h"

#include <cstdio>
#include <cstdlib>
#include <histedit.h>
#include <stdexcept>
#include <system_error>

namespace velkor6::cli {
namespace {

constexpr int historySize = 1000;

// libedit declares the prompt writable but only reads it.
char* promptText(EditLine*) {
    return const_cast<char*>("velkor6> ");
}

struct EditLineEnd {
    void operator()(EditLine* el) const { el_end(el); }
};
struct HistoryEnd {
    void operator()(History* h) const { history_end(h); }
};

} // namespace

std::filesystem::path historyFile() {
    const char* state = std::getenv("XDG_STATE_HOME");
    std::filesystem::path base;
    // A relative XDG path is to be ignored, as if it were unset.
    if (state != nullptr && std::filesystem::path(state).is_absolute()) {
        base = state;
    } else {
        const char* home = std::getenv("HOME");
        if (home == nullptr || *home == '\0')
            return {};
        base = std::filesystem::path(home) / ".local" / "state";
    }
    return base / "velkor6" / "history";
}

class Prompt::Editor {
public:
    Editor(std::vector<std::string> names, std::filesystem::path history)
        : names_(std::move(names)), historyPath_(std::move(history)), history_(history_init()),
          editLine_(el_init("velkor6", stdin, stdout, stderr)) {
        if (!history_ || !editLine_)
            throw std::runtime_error("libedit could not start");
        HistEvent event;
        ::history(history_.get(), &event, H_SETSIZE, historySize);
        ::history(history_.get(), &event, H_SETUNIQUE, 1);
        if (!historyPath_.empty())
            ::history(history_.get(), &event, H_LOAD, historyPath_.c_str());

        EditLine* el = editLine_.get();
        el_set(el, EL_EDITOR, "emacs");
        el_set(el, EL_SIGNAL, 1);
        el_set(el, EL_PROMPT, promptText);
        el_set(el, EL_HIST, ::history, history_.get());
        el_set(el, EL_CLIENTDATA, static_cast<void*>(this));
        el_set(el, EL_ADDFN, "velkor6-complete", "Complete a member name or command", completeKey);
        el_set(el, EL_BIND, "^I", "velkor6-complete", nullptr);
        // The user's ~/.editrc may rebind keys, as it does for other libedit programs.
        el_source(el, nullptr);
    }

    std::optional<std::string> readLine() {
        int count = 0;
        const char* line = el_gets(editLine_.get(), &count);
        if (line == nullptr || count <= 0) {
            std::fputc('\n', stdout);
            return std::nullopt;
        }
        std::string text(line, static_cast<std::size_t>(count));
        while (!text.empty() && (text.back() == '\n' || text.back() == '\r'))
            text.pop_back();
        if (text.find_first_not_of(" \t") != std::string::npos)
            remember(text);
        return text;
    }

private:
    static unsigned char completeKey(EditLine* el, int) {
        void* data = nullptr;
        el_get(el, EL_CLIENTDATA, &data);
        return static_cast<Editor*>(data)->completeWord();
    }

    // Completes the word before the cursor: with one match the whole name, with several their
    // common prefix and the list of them.
    unsigned char completeWord() {
        EditLine* el = editLine_.get();
        const LineInfo* info = el_line(el);
        const std::string_view before(info->buffer,
                                      static_cast<std::size_t>(info->cursor - info->buffer));
        const std::string_view word = before.substr(wordStart(before));
        const Completion c = complete(word, names_);
        if (c.matches.empty())
            return CC_REFRESH_BEEP;
        if (c.text != word) {
            el_deletestr(el, static_cast<int>(word.size()));
            el_insertstr(el, c.text.c_str());
        }
        if (c.matches.size() == 1)
            return CC_REFRESH;
        std::string list = "\n";
        for (const std::string& name : c.matches)
            list += name + "  ";
        list += '\n';
        std::fputs(list.c_str(), stdout);
        return CC_REDISPLAY;
    }

    void remember(const std::string& text) {
        HistEvent event;
        ::history(history_.get(), &event, H_ENTER, text.c_str());
        if (historyPath_.empty())
            return;
        // A history that cannot be saved costs only the recall next time.
        std::error_code ec;
        std::filesystem::create_directories(historyPath_.parent_path(), ec);
        ::history(history_.get(), &event, H_SAVE, historyPath_.c_str());
    }

    std::vector<std::string> names_;
    std::filesystem::path historyPath_;
    std::unique_ptr<History, HistoryEnd> history_;
    std::unique_ptr<EditLine, EditLineEnd> editLine_;
};

Prompt::Prompt(std::vector<std::string> names, std::filesystem::path history)
    : editor_(std::make_unique<Editor>(std::move(names), std::move(history))) {}

Prompt::~Prompt() = default;

std::optional<std::string> Prompt::readLine() {
    return editor_->readLine();
}

} // namespace velkor6::cli
