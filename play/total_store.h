#pragma once

// Where the main menu keeps the player's total between runs. The menu reads it once when it
// loads and writes it when it closes, and at the session's checkpoints while play goes on;
// whatever goes wrong comes back as one message.

// Standard library
#include <string>

namespace marivale {

class TotalStore {
public:
    // The total to play with and, when something went wrong, the one message for the player.
    struct Loaded {
        float total{0.0f};
        std::string warning{};
    };

    virtual ~TotalStore() = default;

    // Reads the kept total, or starts again from 0.
    virtual Loaded load() = 0;
    // Keeps the total; the message for the player when it could not be kept and nobody was
    // told yet, otherwise empty.
    virtual std::string save(float total) = 0;
    // Keeps the total while play goes on, as save() does; a message from here does not count
    // as told, since nobody may be there to read it: the close still tells the player.
    virtual std::string saveCheckpoint(float total) = 0;
};

} // namespace marivale
