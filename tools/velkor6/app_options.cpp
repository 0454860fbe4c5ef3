#include "app_options.h"

#include "literal.h"
#include "system_locale.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cstdint>
#include <filesystem>
#include <limits>
#include <string>
#include <system_error>

namespace velkor6::cli {

void readAppVersion(std::string_view text, HostApp& host) {
    std::array<std::int16_t, 3> parts{};
    std::size_t count = 0;
    for (std::size_t start = 0; start < text.size() || (count > 0 && start == text.size());) {
        const std::size_t dot = std::min(text.find('.', start), text.size());
        const std::string_view piece = text.substr(start, dot - start);
        if (count == parts.size())
            throw UsageError("--app-version " + std::string(text) +
                             ": at most three parts (major.minor.revision)");
        int value = -1;
        const auto [end, ec] = std::from_chars(piece.data(), piece.data() + piece.size(), value);
        if (piece.empty() || piece.front() == '-' || ec != std::errc() ||
            end != piece.data() + piece.size() || value > std::numeric_limits<std::int16_t>::max())
            throw UsageError("--app-version " + std::string(text) + ": '" + std::string(piece) +
                             "' is no number from 0 to 32767");
        parts[count++] = static_cast<std::int16_t>(value);
        start = dot + 1;
    }
    host.major = parts[0];
    host.minor = parts[1];
    host.revision = parts[2];
}

bool isLocalePreset(std::string_view name) {
    auto same = [&](std::string_view preset) {
        return std::equal(name.begin(), name.end(), preset.begin(), preset.end(),
                          [](char a, char b) {
                              return std::tolower(static_cast<unsigned char>(a)) ==
                                     std::tolower(static_cast<unsigned char>(b));
                          });
    };
    return same("de-DE") || same("en-US");
}

void checkLocale(std::string_view name) {
    if (isLocalePreset(name))
        return;
    const std::string text(name);
    if (!localeInstalled(text))
        throw UsageError("--locale " + text +
                         ": no such locale (de-DE, en-US, or one that locale -a lists)");
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
        const std::u8string utf8 = here.u8string();
        options.appPath.assign(utf8.begin(), utf8.end());
    }
    return options;
}

} // namespace velkor6::cli
