// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/AudioPlayer.h"
#include "platform/NotificationRecord.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <set>
#include <string>

namespace kavenda {

class Log;
class Paths;

// The program's own player for the sound of a reminder, played at full length. A newer
// reminder cuts an older one's sound short. Each sound played has a ticket, so that closing the
// alert or notification of an older reminder leaves a newer one's sound alone. A person's own
// recording that cannot be played gives way to the program's recording of the same name, so
// that a broken file never silences a call.
class ReminderSound {
public:
    // Without a check an own recording counts as playable when the player opens it.
    ReminderSound(AudioPlayer& audio, const Paths& paths, Log& log, PlayableCheck isPlayable = {});

    // Plays the record's sound, if it has one; returns its ticket (0: nothing plays).
    int play(const NotificationRecord& record);
    // Stops the sound of the ticket if it still plays.
    void stop(int ticket);
    void stop();
    bool isPlaying() const;
    int current() const { return current_; }

private:
    bool openOwn(const std::string& soundName);
    bool isPlayable(const std::filesystem::path& own);

    AudioPlayer& audio_;
    const Paths& paths_;
    Log& log_;
    PlayableCheck isPlayable_;
    std::set<std::string> reported_;  // own recordings already named in the log
    // Own recordings found playable, as they were then: not decoded again for every call.
    std::map<std::string, std::pair<std::filesystem::file_time_type, std::uintmax_t>> playable_;
    int current_ = 0;
    int lastTicket_ = 0;
};

}  // namespace kavenda
