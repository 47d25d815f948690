// Plays the first puzzle of a file with the core alone until it is killed:
// tessaly_core_player FOLDER FILE

#include "core/play/selection_walk.h"
#include "core/session/start_up.h"
#include "killed/player.h"
#include "support/core_fakes.h"

namespace tessaly::killed {
namespace {

int play(char** argv) {
    SessionScene scene;
    scene.session.ProgramFolder = std::filesystem::path(argv[1]) / "";
    if (const Outcome book = openPlayBook(scene.session); !book.ok())
        say("told", book.problem);
    scene.files.load(argv[2]);
    const auto press = [&scene](std::mt19937& chance) {
        constexpr int Steps = 8;
        for (auto step = chance() % Steps; step > 0; --step)
            scene.input.moveSelection(static_cast<int>(chance() % 3) - 1,
                                      static_cast<int>(chance() % 3) - 1);
        int key = chance() % 5 == 0 ? 8 : static_cast<int>('0' + chance() % 7);
        switch (chance() % 12) {
        case 0:
        case 1:
            return scene.play.cmdundo();
        case 2:
            return scene.play.cmdredo();
        case 3:
            return chance() % 4 == 0 ? scene.play.cmdsetpairs() : scene.play.cmdset1s();
        default:
            scene.input.cell() ? scene.input.Picture2_KeyDown(key) : scene.input.selectFirst();
        }
        if (!scene.prompts.shown.empty())
            say("told", scene.prompts.told());
    };
    playForEver(scene.session, press);
}

} // namespace
} // namespace tessaly::killed

int main(int argc, char** argv) {
    return argc == 3 ? tessaly::killed::sayingWhatFails([&] { return tessaly::killed::play(argv); })
                     : 2;
}
