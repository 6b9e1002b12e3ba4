// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

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

bool SoundChoice::save()
{
    if (!selectedPath_)
        return true;
    if (!db_.ExecuteNonQuery(format(sql::updateSoundChoice, {*selectedPath_})))
        return false;
    selected_ = *selectedPath_;
    saveEnabled_ = false;
    stopPreview();
    return true;
}

void SoundChoice::stopPreview()
{
    if (hasPlayer_ && audio_)
        audio_->stop();
    hasPlayer_ = false;
}

std::string SoundChoice::rowLabel(int row) const
{
    return hasOwnRecording(row) ? label(row) + " (صدای شما)" : label(row);
}

bool SoundChoice::hasOwnRecording(int row) const
{
    return acceptsOwnRecording(row) && ownRecording(paths_, fileName(row)).has_value();
}

std::filesystem::path SoundChoice::ownFolder() const
{
    return ownSoundsFolder(paths_);
}

std::optional<SoundChoice::OwnRecording> SoundChoice::refusal(int row, const std::filesystem::path& source,
                                                              const PlayableCheck& isPlayable) const
{
    if (!acceptsOwnRecording(row))
        return OwnRecording::notCopied;
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(source, error);
    if (!error && size > largestOwnRecording)
        return OwnRecording::tooLarge;
    if (isPlayable && !isPlayable(source))
        return OwnRecording::notPlayable;
    return std::nullopt;
}

SoundChoice::OwnRecording SoundChoice::copyOwnRecording(const std::filesystem::path& ownFolder, int row,
                                                        const std::filesystem::path& source)
{
    // A copy that stops halfway must not replace a recording that worked.
    const std::filesystem::path target = ownFolder / fileName(row);
    const std::filesystem::path partial = ownFolder / (fileName(row) + ".part");
    std::error_code error;
    std::filesystem::create_directories(ownFolder, error);
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

SoundChoice::OwnRecording SoundChoice::useOwnRecording(int row, const std::filesystem::path& source,
                                                       const PlayableCheck& isPlayable)
{
    if (const std::optional<OwnRecording> refused = refusal(row, source, isPlayable))
        return *refused;
    return copyOwnRecording(ownFolder(), row, source);
}

bool SoundChoice::useShippedRecording(int row)
{
    if (!hasOwnRecording(row))
        return true;
    stopPreview();
    std::error_code error;
    return std::filesystem::remove(ownFolder() / fileName(row), error) && !error;
}

}  // namespace kavenda
