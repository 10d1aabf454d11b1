#pragma once

// Keeps the player's total between runs: reads it when the main menu loads, running the
// recovery when there is no readable total, and writes it when the menu closes. When the total
// cannot be kept it says so plainly, once per run, and never replaces a data file it could not
// read or may not write: such a file stays exactly as it was found.

// Standard library
#include <filesystem>
#include <string>

namespace marivale {

class TotalKeeper {
public:
    // The total to play with and, when something went wrong, the one message for the player.
    struct Loaded {
        float total{0.0f};
        std::string warning{};
    };

    // Reads the data file of the current folder, or runs the recovery.
    Loaded load();

    // Writes the total; the message for the player when it could not be kept and nobody was
    // told yet, otherwise empty.
    std::string save(float total);

private:
    std::string tell(std::string message);

    std::filesystem::path folder_{}; // empty: the current folder, whatever it is
    bool folderGone_{false};         // the folder the program was started from no longer exists
    bool mayWrite_{true};            // false: the file is left as it was found
    bool told_{false};
};

} // namespace marivale
