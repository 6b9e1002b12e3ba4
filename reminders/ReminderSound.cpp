// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reminders/ReminderSound.h"

#include "platform/AudioPlayer.h"
#include "platform/Log.h"
#include "platform/Paths.h"
#include "reminders/SoundFiles.h"

#include <system_error>

#include <fcntl.h>
#include <unistd.h>

namespace kavenda {

namespace {

// Why a file cannot be played, in words for the log.
std::string whyUnplayable(const std::filesystem::path& file)
{
    std::error_code error;
    if (std::filesystem::file_size(file, error) == 0 && !error)
        return "it is empty";
    if (::faccessat(AT_FDCWD, file.c_str(), R_OK, AT_EACCESS) != 0)
        return "it cannot be read";
    return "it holds no sound that can be decoded";
}

}  // namespace

ReminderSound::ReminderSound(AudioPlayer& audio, const Paths& paths, Log& log, PlayableCheck isPlayable)
    : audio_(audio), paths_(paths), log_(log), isPlayable_(std::move(isPlayable))
{
}

bool ReminderSound::isPlayable(const std::filesystem::path& own)
{
    if (!isPlayable_)
        return true;
    std::error_code error;
    const auto state =
        std::make_pair(std::filesystem::last_write_time(own, error), std::filesystem::file_size(own, error));
    if (error)
        return false;
    if (const auto known = playable_.find(own.string()); known != playable_.end() && known->second == state)
        return true;
    if (!isPlayable_(own))
        return false;
    playable_[own.string()] = state;
    return true;
}

bool ReminderSound::openOwn(const std::string& soundName)
{
    const std::optional<std::filesystem::path> own = ownRecording(paths_, soundName);
    if (!own)
        return false;
    if (isPlayable(*own) && audio_.open(*own))
        return true;
    if (reported_.insert(own->string()).second)
        log_.line("your recording " + own->string() + " cannot be played (" + whyUnplayable(*own)
                  + "); the program's own " + soundName + " plays instead");
    return false;
}

int ReminderSound::play(const NotificationRecord& record)
{
    stop();
    if (record.soundName.empty()
        || (!openOwn(record.soundName) && !audio_.open(paths_.resourceFolder() / record.soundName))) {
        current_ = 0;
        return 0;
    }
    audio_.play();
    current_ = ++lastTicket_;
    log_.line("sound playing: " + record.soundName);
    return current_;
}

void ReminderSound::stop(int ticket)
{
    if (ticket != 0 && ticket == current_)
        stop();
}

void ReminderSound::stop()
{
    if (!isPlaying())
        return;
    audio_.stop();
    current_ = 0;
    log_.line("sound stopped");
}

bool ReminderSound::isPlaying() const
{
    return current_ != 0 && audio_.isPlaying();
}

}  // namespace kavenda
