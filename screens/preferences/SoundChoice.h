// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/AudioPlayer.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace kavenda {

class MyDB;
class Paths;

// The recording of the calls to prayer: which row carries the checkmark, the preview of a
// tapped row, the stored choice, and a person's own recording for a row.
class SoundChoice {
public:
    static constexpr int rowCount = 11;
    // A random recording per notification: nothing to preview, no file of its own.
    static constexpr int randomRow = 9;

    // A person's file larger than this is no recording of a call.
    static constexpr std::uintmax_t largestOwnRecording = 50 * 1024 * 1024;

    enum class OwnRecording { copied, notPlayable, notCopied, tooLarge };

    // Without an audio player nothing is previewed.
    SoundChoice(MyDB& db, const Paths& paths, AudioPlayer* audio);

    void load();
    static const std::string& label(int row);
    // The label, marked where the person's own recording takes the row's place.
    std::string rowLabel(int row) const;
    static std::string fileName(int row);

    int selected() const { return selected_; }
    std::optional<int> selectedPath() const { return selectedPath_; }
    // Building a row: the stored row takes the checkmark back whenever it is built.
    bool cellForRow(int row);
    // Moves the checkmark, stops the preview that plays and starts the row's own.
    void didSelectRow(int row);
    bool saveEnabled() const { return saveEnabled_; }
    // False when the database refused: the choice stays, to be saved again.
    bool save();
    // Leaving the screen.
    void stopPreview();

    bool acceptsOwnRecording(int row) const { return row >= 0 && row < rowCount && row != randomRow; }
    bool hasOwnRecording(int row) const;
    // Why a file cannot become the row's recording (too large, not playable); none when it can.
    std::optional<OwnRecording> refusal(int row, const std::filesystem::path& source,
                                        const PlayableCheck& isPlayable) const;
    // Copies a file over the row's recording in the data folder; a copy that fails leaves the
    // earlier one. Touches nothing but files, so it may run on a worker thread.
    static OwnRecording copyOwnRecording(const std::filesystem::path& ownFolder, int row,
                                         const std::filesystem::path& source);
    std::filesystem::path ownFolder() const;
    // The refusal, else the copy, at once.
    OwnRecording useOwnRecording(int row, const std::filesystem::path& source, const PlayableCheck& isPlayable);
    // The program's recording plays again for the row; false when the own file stays.
    bool useShippedRecording(int row);

private:
    MyDB& db_;
    const Paths& paths_;
    AudioPlayer* audio_;
    int selected_ = 0;
    std::optional<int> selectedPath_;
    bool hasPlayer_ = false;
    bool saveEnabled_ = false;
};

}  // namespace kavenda
