// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace kavenda {

// The options of the kavenda command, read without Qt so that the terminal commands never load
// a window's libraries. Qt's own options (-platform, -style, ...) are kept aside for the window.
struct CommandLine {
    bool help = false;
    bool version = false;
    std::optional<std::string> now;
    bool tall = false;
    std::optional<std::string> dataDir;
    std::optional<std::string> screenshot;
    bool reminders = false;
    bool month = false;
    bool year = false;
    bool background = false;
    bool quit = false;
    bool verbose = false;
    std::string positional;
    std::vector<std::string> qtArguments;

    // The options read, or the line that tells what is wrong with them.
    static std::variant<CommandLine, std::string> parse(int argc, const char* const* argv);
    static std::string helpText();

    // A command that prints or sends and ends, with no window.
    bool servedByTerminal() const { return help || version || reminders || month || year || quit; }
};

}  // namespace kavenda
