#include "session/Sounds.h"

#include "LessonFixture.h"

#include <gtest/gtest.h>

#include <string>

namespace keyfluent::session
{
namespace
{

using namespace fixtures;

using SoundsTest = LessonFixture;

TEST_F(SoundsTest, AKeyIsRewoundAndPlayedByItsKind)
{
    context.optSound = true;
    Open();
    PlayKeySound(It(), 13);
    EXPECT_EQ(TakeEvents(), (Events{"mmcEnter Prev", "mmcEnter Play"}));
    PlayKeySound(It(), 32);
    EXPECT_EQ(TakeEvents(), (Events{"mmcSpace Prev", "mmcSpace Play"}));
    for (const int code : {65, 27, 48, 112, 226}) {
        PlayKeySound(It(), code);
        EXPECT_EQ(TakeEvents(), (Events{"mmcChar Prev", "mmcChar Play"})) << code;
    }
}

TEST_F(SoundsTest, WithoutTheAidKeysAreSilent)
{
    Open();
    for (const int code : {13, 32, 65}) {
        PlayKeySound(It(), code);
        EXPECT_EQ(TakeEvents(), Events{}) << code;
    }
}

TEST_F(SoundsTest, BackspaceSoundsWhateverTheAid)
{
    for (const bool sound : {false, true}) {
        context.optSound = sound;
        Open();
        PlayBackspaceSound(It());
        EXPECT_EQ(TakeEvents(), (Events{"mmcBack Prev", "mmcBack Play"}));
    }
}

TEST_F(SoundsTest, CapsLockIsRewoundAfterwardsWhateverTheAid)
{
    for (const bool sound : {false, true}) {
        context.optSound = sound;
        Open();
        PlayCapsSound(It());
        EXPECT_EQ(TakeEvents(), (Events{"mmcCaps Play", "mmcCaps Prev"}));
    }
}

TEST_F(SoundsTest, AKeySoundsBeforeItIsJudgedSoAWrongOneSoundsLikeARightOne)
{
    context.optSound = true;
    OpenRows(1, 1, Language::English, {u"asdf "});
    std::string judged;
    machine.platform.commandPlayer = [&](context::Player, context::PlayerCommand) {
        judged += std::to_string(It().correctCount) + "+" + std::to_string(It().errorCount) + " ";
    };
    Key('A');
    Key('X');
    EXPECT_EQ(judged, "0+0 0+0 1+0 1+0 ");
    EXPECT_EQ(State(), "1/1 a[s]df  | ax | 1+1 blinking");
}

TEST_F(SoundsTest, ARefusedKeyBeepsOnlyWithoutTheAid)
{
    OpenRows(1, 1, Language::English, {u"asdf "});
    Key('X');
    EXPECT_EQ(TakeEvents(), (Events{"focus txtOrigin", "system beep", "focus txtOrigin"}));
    context.optSound = true;
    OpenRows(1, 1, Language::English, {u"asdf "});
    Key('X');
    EXPECT_EQ(TakeEvents(),
              (Events{"focus txtOrigin", "mmcChar Prev", "mmcChar Play", "focus txtOrigin"}));
}

TEST_F(SoundsTest, EveryKeyWithoutACapIsSilentButBackspaceAndCapsLock)
{
    context.optSound = true;
    OpenRows(1, 1, Language::English, {u"asdf "});
    for (const int code : {9, 16, 17, 18, 33, 37, 38, 39, 40, 45, 46, 96, 105, 107, 0, 65535}) {
        Key(code);
        for (const std::string& event : TakeEvents()) {
            EXPECT_EQ(event, "focus txtOrigin") << code;
        }
    }
}

TEST_F(SoundsTest, BackspaceAndCapsLockSoundThroughTheirKeys)
{
    for (const int lesson : {1, 14, 15}) {
        OpenRows(lesson, 1, Language::English, {u"asdf "});
        Backspace();
        const Events events = TakeEvents();
        ASSERT_GE(events.size(), 2U);
        EXPECT_EQ(events[0], "mmcBack Prev");
        EXPECT_EQ(events[1], "mmcBack Play");
        Key(keyboard::keyCapsLock);
        EXPECT_EQ(TakeEvents(), (Events{"mmcCaps Play", "mmcCaps Prev"}));
    }
}

} // namespace
} // namespace keyfluent::session
