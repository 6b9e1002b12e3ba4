#include "screens/preferences/SoundChoice.h"

#include "data/IntValue.h"
#include "data/MyDB.h"
#include "data/Statements.h"
#include "platform/AudioPlayer.h"
#include "reminders/SoundFiles.h"
#include "text/Format.h"

#include <array>
#include <system_error>

namespace kavenda {

namespace {

// The shipped recordings are synthesised melodies: rows 0 to 6 are named by their modes.
const std::array<std::string, SoundChoice::rowCount> labels = {
    "اذان در مقام بیات",
    "اذان در مقام حجاز",
    "اذان در مقام راست",
    "اذان در مقام سه‌گاه",
    "اذان در مقام نهاوند",
    "اذان در مقام کرد",
    "اذان در مقام صبا",
    "اذان مدینه",
    "اذان مکه",
    "تصادفی",
    "بیپ",
};

}  // namespace

SoundChoice::SoundChoice(MyDB& db, const Paths& paths, AudioPlayer* audio) : db_(db), paths_(paths), audio_(audio)
{
}

void SoundChoice::load()
{
    selected_ = intValue(db_.ExecuteScaler(sql::soundChoice).value_or(""));
    selectedPath_.reset();
    saveEnabled_ = false;
}

const std::string& SoundChoice::label(int row)
{
    return labels.at(row);
}

std::string SoundChoice::fileName(int row)
{
    return format("%d.wav", {row});
}

bool SoundChoice::cellForRow(int row)
{
    if (row != selected_)
        return false;
    selectedPath_ = row;
    return true;
}

void SoundChoice::didSelectRow(int row)
{
    stopPreview();
    selectedPath_ = row;
    if (audio_) {
        hasPlayer_ = audio_->open(soundFile(paths_, fileName(row)));
        if (hasPlayer_ && row != randomRow)
            audio_->play();
    }
    saveEnabled_ = row != selected_;
}

void SoundChoice::save()
{
    if (!selectedPath_)
        return;
    db_.ExecuteNonQuery(format(sql::updateSoundChoice, {*selectedPath_}));
    selected_ = *selectedPath_;
    saveEnabled_ = false;
    stopPreview();
}

void SoundChoice::stopPreview()
{
    if (hasPlayer_ && audio_)
        audio_->stop();
    hasPlayer_ = false;
}

SoundChoice::OwnRecording SoundChoice::useOwnRecording(int row, const std::filesystem::path& source,
                                                       const PlayableCheck& isPlayable)
{
    if (!acceptsOwnRecording(row))
        return OwnRecording::notCopied;
    if (!isPlayable(source))
        return OwnRecording::notPlayable;
    // A copy that stops halfway must not replace a recording that worked.
    const std::filesystem::path folder = ownSoundsFolder(paths_);
    const std::filesystem::path target = folder / fileName(row);
    const std::filesystem::path partial = folder / (fileName(row) + ".part");
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (!error)
        std::filesystem::copy_file(source, partial, std::filesystem::copy_options::overwrite_existing, error);
    if (!error)
        std::filesystem::rename(partial, target, error);
    if (error) {
        std::filesystem::remove(partial, error);
        return OwnRecording::notCopied;
    }
    return OwnRecording::copied;
}

}  // namespace kavenda
