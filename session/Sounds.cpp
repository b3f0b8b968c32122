#include "session/Sounds.h"

#include "keyboard/KeyCodes.h"

namespace keyfluent::session
{
namespace
{

using context::Player;
using context::PlayerCommand;

void RewindAndPlay(const Lesson& lesson, Player player)
{
    lesson.platform.commandPlayer(player, PlayerCommand::Prev);
    lesson.platform.commandPlayer(player, PlayerCommand::Play);
}

} // namespace

void PlayKeySound(const Lesson& lesson, int keyCode)
{
    if (!lesson.context.optSound) {
        return;
    }
    if (keyCode == keyboard::keyEnter) {
        RewindAndPlay(lesson, Player::Enter);
    } else if (keyCode == keyboard::keySpace) {
        RewindAndPlay(lesson, Player::Space);
    } else {
        RewindAndPlay(lesson, Player::Char);
    }
}

void PlayBackspaceSound(const Lesson& lesson)
{
    RewindAndPlay(lesson, Player::Back);
}

// Meant: this one is rewound afterwards.
void PlayCapsSound(const Lesson& lesson)
{
    lesson.platform.commandPlayer(Player::Caps, PlayerCommand::Play);
    lesson.platform.commandPlayer(Player::Caps, PlayerCommand::Prev);
}

} // namespace keyfluent::session
