#pragma once

// Keeps the player's total between runs: reads it when the main menu loads, running the
// recovery when there is no readable total, and writes it at the session's checkpoints and when
// the menu closes. When the total cannot be kept it tells the player plainly, once per run, and
// never replaces a data file it could not read or may not write: such a file stays exactly as
// it was found.

// Standard library
#include <filesystem>
#include <string>

// Marivale
#include "play/total_store.h"

namespace marivale {

class TotalKeeper final : public TotalStore {
public:
    // Reads the data file of the current folder, or runs the recovery.
    Loaded load() override;

    // Writes the total to the data file of the folder the load used.
    std::string save(float total) override;
    std::string saveCheckpoint(float total) override;

private:
    std::string write(float total) const;
    std::string tell(std::string message);

    std::filesystem::path folder_{}; // empty: the current folder, whatever it is
    bool folderGone_{false};         // the folder the program was started from no longer exists
    bool mayWrite_{true};            // false: the file is left as it was found
    bool told_{false};
};

} // namespace marivale
