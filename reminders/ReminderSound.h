#pragma once

#include "platform/NotificationRecord.h"

namespace kavenda {

class AudioPlayer;
class Log;
class Paths;

// The program's own player for the sound of a reminder, played at full length. A newer
// reminder cuts an older one's sound short. Each sound played has a ticket, so that closing the
// alert or notification of an older reminder leaves a newer one's sound alone.
class ReminderSound {
public:
    ReminderSound(AudioPlayer& audio, const Paths& paths, Log& log);

    // Plays the record's sound, if it has one; returns its ticket (0: nothing plays).
    int play(const NotificationRecord& record);
    // Stops the sound of the ticket if it still plays.
    void stop(int ticket);
    void stop();
    bool isPlaying() const;
    int current() const { return current_; }

private:
    AudioPlayer& audio_;
    const Paths& paths_;
    Log& log_;
    int current_ = 0;
    int lastTicket_ = 0;
};

}  // namespace kavenda
