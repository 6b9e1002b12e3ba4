// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/CommandLine.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace kavenda {

namespace {

struct Option {
    std::string_view shortName;
    std::string_view name;
    std::string_view valueName;
    std::string_view description;
};

constexpr std::array<Option, 12> options{{
    {"h", "help", "", "Displays help on commandline options."},
    {"v", "version", "", "Displays version information."},
    {"", "now", "time", "Set the device clock to a local date and time, such as 2013-07-01T12:00."},
    {"", "tall", "", "A tall screen: 320 x 548 instead of 320 x 460."},
    {"", "data-dir", "folder", "The folder of the working database (default: the XDG data folder)."},
    {"", "screenshot", "file", "Start, let the first screen settle, write a PNG of the window to the file and exit."},
    {"", "reminders", "", "Rebuild the reminders as a start does, print the pending ones in fire order and exit."},
    {"", "month", "",
     "Print a Persian month with its holidays and occasions (this month unless YYYY-MM is given) and exit."},
    {"", "year", "",
     "Print a Persian year as twelve months with their holidays (this year unless YYYY is given) and exit."},
    {"", "background", "", "Start in the system tray without showing the window."},
    {"", "quit", "", "End the program running on the data folder."},
    {"", "verbose", "", "With --reminders, --month or --year: the log lines on stderr, not in the system log."},
}};

// Qt's options for any window, handed to it as they came.
constexpr std::array<std::string_view, 14> qtOptionsWithValue{
    "platform", "platformpluginpath", "platformtheme", "plugin", "qwindowgeometry", "qwindowicon", "qwindowtitle",
    "session",  "style",              "stylesheet",    "display", "geometry",        "name",        "title"};
constexpr std::array<std::string_view, 2> qtFlags{"reverse", "widgetcount"};

const Option* find(std::string_view name)
{
    const auto found = std::find_if(options.begin(), options.end(), [name](const Option& option) {
        return option.name == name || (!option.shortName.empty() && option.shortName == name);
    });
    return found == options.end() ? nullptr : &*found;
}

template <std::size_t N> bool among(const std::array<std::string_view, N>& names, std::string_view name)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

void set(CommandLine& line, std::string_view name, std::string value)
{
    if (name == "help" || name == "h")
        line.help = true;
    else if (name == "version" || name == "v")
        line.version = true;
    else if (name == "now")
        line.now = std::move(value);
    else if (name == "tall")
        line.tall = true;
    else if (name == "data-dir")
        line.dataDir = std::move(value);
    else if (name == "screenshot")
        line.screenshot = std::move(value);
    else if (name == "reminders")
        line.reminders = true;
    else if (name == "month")
        line.month = true;
    else if (name == "year")
        line.year = true;
    else if (name == "background")
        line.background = true;
    else if (name == "quit")
        line.quit = true;
    else if (name == "verbose")
        line.verbose = true;
}

}  // namespace

std::variant<CommandLine, std::string> CommandLine::parse(int argc, const char* const* argv)
{
    CommandLine line;
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument = argv[i];
        if (argument.size() < 2 || argument[0] != '-') {
            if (!line.positional.empty())
                return "Unexpected argument '" + std::string(argument) + "'.";
            line.positional = argument;
            continue;
        }
        std::string_view name = argument.substr(argument[1] == '-' ? 2 : 1);
        std::optional<std::string> attached;
        if (const std::size_t equals = name.find('='); equals != std::string_view::npos) {
            attached = std::string(name.substr(equals + 1));
            name = name.substr(0, equals);
        }
        if (among(qtOptionsWithValue, name) || among(qtFlags, name)) {
            line.qtArguments.emplace_back(argument);
            if (among(qtOptionsWithValue, name) && !attached && i + 1 < argc)
                line.qtArguments.emplace_back(argv[++i]);
            continue;
        }
        const Option* option = find(name);
        // Single-letter options take one dash, long ones two, as Qt's parser wants them.
        if (!option || (argument[1] == '-') != (name.size() > 1))
            return "Unknown option '" + std::string(name) + "'.";
        std::string value;
        if (!option->valueName.empty()) {
            if (attached)
                value = *attached;
            else if (i + 1 < argc)
                value = argv[++i];
            else
                return "Missing value after '" + std::string(argument) + "'.";
        } else if (attached) {
            return "Unexpected value after '" + std::string(argument) + "'.";
        }
        set(line, name, std::move(value));
    }
    return line;
}

std::string CommandLine::helpText()
{
    std::string text = "Usage: kavenda [options] [YYYY-MM|YYYY]\n"
                       "Kavenda: the Persian calendar and the religious times of your cities.\n\nOptions:\n";
    for (const Option& option : options) {
        std::string names = "  ";
        names += option.shortName.empty() ? "" : "-" + std::string(option.shortName) + ", ";
        names += "--" + std::string(option.name);
        if (!option.valueName.empty())
            names += " <" + std::string(option.valueName) + ">";
        names.resize(std::max<std::size_t>(names.size() + 2, 26), ' ');
        text += names + std::string(option.description) + '\n';
    }
    text += "\nArguments:\n"
            "  [YYYY-MM|YYYY]          With --month: the Persian year and month, such as 1392-01; with --year: the "
            "year, such as 1405.\n";
    return text;
}

}  // namespace kavenda
