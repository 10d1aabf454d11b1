#include "state/game_state.h"

namespace marivale {

void applyStartupDefaults(GameState& state) {
    state.PlayUnit = 0.25f;
    setPhase(state, Phase::BeforeDeal);
}

} // namespace marivale
