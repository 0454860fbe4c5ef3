#include "app_options.h"

#include "literal.h"

#include <charconv>
#include <cstdint>
#include <filesystem>
#include <limits>
#include <string>
#include <system_error>

namespace velkor6::cli {

void readAppVersion(std::string_view text, HostApp& host) {
    HostApp read;
    std::int16_t* readParts[] = {&read.major, &read.minor, &read.revision};
    if (text.empty()) {
        host.major = host.minor = host.revision = 0;
        return;
    }
    std::size_t start = 0;
    for (std::size_t i = 0;; ++i) {
        const std::size_t dot = std::min(text.find('.', start), text.size());
        const std::string_view piece = text.substr(start, dot - start);
        if (i == 3)
            throw UsageError("--app-version " + std::string(text) +
                             ": at most three parts (major.minor.revision)");
        int value = -1;
        const auto [end, ec] = std::from_chars(piece.data(), piece.data() + piece.size(), value);
        if (piece.empty() || piece.front() == '-' || ec != std::errc() ||
            end != piece.data() + piece.size() || value > std::numeric_limits<std::int16_t>::max())
            throw UsageError("--app-version " + std::string(text) + ": '" + std::string(piece) +
                             "' is no number from 0 to 32767");
        *readParts[i] = static_cast<std::int16_t>(value);
        if (dot == text.size())
            break;
        start = dot + 1;
    }
    host.major = read.major;
    host.minor = read.minor;
    host.revision = read.revision;
}

Options resolveAppOptions(Options options) {
    HostApp check;
    readAppVersion(options.appVersion, check);
    if (options.appPath.empty()) {
        std::error_code ec;
        const auto here = std::filesystem::current_path(ec);
        if (ec)
            throw UsageError("the current folder cannot be read (" + ec.message() +
                             "): give --app-path");
        options.appPath = here.string();
    }
    return options;
}

} // namespace velkor6::cli
