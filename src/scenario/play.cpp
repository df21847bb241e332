#include "scenario/play.h"

#include "scenario/bare_hands.h"
#include "scenario/player.h"

namespace vorbano {

std::string playBare(const Scenario& scenario, const Stage& stage, Renderer& renderer, const Start& start) {
    if (!scenario.errors.empty()) return scenario.errors.front();
    BareHands hands;
    Player player(scenario, stage, hands);
    BareDesktop desktop(player, hands);
    BarePrintEngine printing(player, renderer);
    player.prepare();
    if (!player.over()) start(desktop, printing);
    player.programEnded();
    return player.failure();
}

}  // namespace vorbano
