#include "reminders/ReminderSound.h"

#include "platform/AudioPlayer.h"
#include "platform/Log.h"
#include "platform/Paths.h"
#include "reminders/SoundFiles.h"

namespace kavenda {

ReminderSound::ReminderSound(AudioPlayer& audio, const Paths& paths, Log& log) : audio_(audio), paths_(paths), log_(log)
{
}

int ReminderSound::play(const NotificationRecord& record)
{
    stop();
    if (record.soundName.empty() || !audio_.open(soundFile(paths_, record.soundName))) {
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
