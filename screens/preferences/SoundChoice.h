#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace kavenda {

class AudioPlayer;
class MyDB;
class Paths;

// The recording of the calls to prayer: which row carries the checkmark, the preview of a
// tapped row, the stored choice, and a person's own recording for a row.
class SoundChoice {
public:
    static constexpr int rowCount = 11;
    // A random recording per notification: nothing to preview, no file of its own.
    static constexpr int randomRow = 9;

    enum class OwnRecording { copied, notPlayable, notCopied };
    using PlayableCheck = std::function<bool(const std::filesystem::path&)>;

    // Without an audio player nothing is previewed.
    SoundChoice(MyDB& db, const Paths& paths, AudioPlayer* audio);

    void load();
    static const std::string& label(int row);
    static std::string fileName(int row);

    int selected() const { return selected_; }
    std::optional<int> selectedPath() const { return selectedPath_; }
    // Building a row: the stored row takes the checkmark back whenever it is built.
    bool cellForRow(int row);
    // Moves the checkmark, stops the preview that plays and starts the row's own.
    void didSelectRow(int row);
    bool saveEnabled() const { return saveEnabled_; }
    void save();
    // Leaving the screen.
    void stopPreview();

    bool acceptsOwnRecording(int row) const { return row >= 0 && row < rowCount && row != randomRow; }
    // Copies a playable file over the row's recording in the data folder; a file that cannot
    // be played leaves everything as it was.
    OwnRecording useOwnRecording(int row, const std::filesystem::path& source, const PlayableCheck& isPlayable);

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
