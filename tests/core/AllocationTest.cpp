// Once a lesson is open no key asks for memory: not a right one, not a wrong one, not the last of a
// row, and not the ticks between them. This file takes the place of the allocator to count.
#include "Typist.h"
#include "course/Aids.h"
#include "session/Letters.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

namespace
{

bool counting = false;
long allocations = 0;

void* Allocate(std::size_t size)
{
    allocations += counting ? 1 : 0;
    if (void* memory = std::malloc(size == 0 ? 1 : size)) {
        return memory;
    }
    throw std::bad_alloc();
}

} // namespace

void* operator new(std::size_t size)
{
    return Allocate(size);
}
void* operator new[](std::size_t size)
{
    return Allocate(size);
}
void operator delete(void* memory) noexcept
{
    std::free(memory);
}
void operator delete[](void* memory) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace keyfluent::session
{
namespace
{

using namespace fixtures;
using namespace keyboard;

// How often memory is asked for while it lives.
class Count
{
public:
    Count()
    {
        allocations = 0;
        counting = true;
    }
    ~Count() { counting = false; }
    Count(const Count&) = delete;
    Count& operator=(const Count&) = delete;

    long Stop()
    {
        counting = false;
        return allocations;
    }
};

class AllocationTest : public LessonFixture
{
protected:
    // What is recorded would be counted too.
    void SetUp() override { machine.recording = false; }

    void OpenPlace(int lesson, int exercise, Language language)
    {
        Place(lesson, exercise, language);
        course::DecideAids(context);
        context.optSound = true;
        context.optCounter = true;
        context.optClock = true;
        Open();
    }
};

TEST_F(AllocationTest, TheAllocatorIsReallyCounted)
{
    Count count;
    const auto text = std::make_unique<std::u16string>(1000, u'a');
    EXPECT_EQ(count.Stop(), 2);
    EXPECT_EQ(text->size(), 1000U);
}

TEST_F(AllocationTest, AWholeTextTypedRightAsksForNoMemory)
{
    for (const std::int32_t kind : {context::windowsKeyboard, context::macintoshKeyboard}) {
        context.keyboardKind = kind;
        for (const Language language : {Language::English, Language::Arabic}) {
            for (int lesson = 1; lesson <= 15; ++lesson) {
                for (int exercise = 1; exercise <= 5; ++exercise) {
                    if (course::IsSpecialExercise(lesson, exercise, language == Language::Arabic)) {
                        continue;
                    }
                    // The first run lets the typist learn its keys.
                    for (const bool counted : {false, true}) {
                        OpenPlace(lesson, exercise, language);
                        PerfectTypist typist(*this);
                        Count count;
                        const bool ended = typist.TypeToTheEnd(10000);
                        EXPECT_EQ(counted ? count.Stop() : 0, 0) << lesson << "." << exercise;
                        ASSERT_TRUE(ended);
                    }
                }
            }
        }
    }
}

TEST_F(AllocationTest, MistakesInAnyRegimeAskForNoMemory)
{
    struct Case {
        int lesson;
        int exercise;
        Language language;
    };
    const Case places[] = {{1, 1, Language::English},  {7, 5, Language::English},
                           {9, 2, Language::Arabic},   {14, 1, Language::English},
                           {12, 1, Language::Arabic},  {14, 3, Language::Arabic},
                           {15, 1, Language::English}, {15, 1, Language::Arabic}};
    for (const Case& place : places) {
        for (std::uint32_t seed = 0; seed < 5; ++seed) {
            for (const bool counted : {false, true}) {
                machine.capsLockState = 0;
                OpenPlace(place.lesson, place.exercise, place.language);
                ClumsyTypist typist(*this, seed, 30);
                long steps = 0;
                Count count;
                while (IsOpen() && !It().reviewMode && ++steps < 40000) {
                    typist.Step();
                }
                EXPECT_EQ(counted ? count.Stop() : 0, 0)
                    << place.lesson << "." << place.exercise << ", seed " << seed;
                EXPECT_LT(steps, 40000);
            }
        }
    }
}

TEST_F(AllocationTest, KeysInTheReviewAskForNoMemory)
{
    OpenPlace(15, 1, Language::English);
    Key('X');
    for (int keys = 0; !It().reviewMode && keys < 1000; ++keys) {
        Wait(100);
        Key(It().txtOrigin.SelectedText() == u"\u0691" ? keyEnter : 'X');
    }
    ASSERT_TRUE(It().reviewMode);
    Count count;
    for (int i = 0; i < 100; ++i) {
        Key(37);
        Wait(100);
    }
    EXPECT_EQ(count.Stop(), 0);
}

TEST_F(AllocationTest, KeysOfALongFreeTextAskForNoMemory)
{
    context.freeText = true;
    OpenPlace(12, 4, Language::English);
    Key('A');
    Count count;
    for (int keys = 1; keys <= 30000; ++keys) {
        Wait(50);
        Key(keys % 7 == 0 ? keySpace : 'A');
        EditField(It().txtOrigin, It().txtOrigin.Size(), 0, u"a");
    }
    EXPECT_EQ(count.Stop(), 0);
    EXPECT_EQ(It().txtOrigin.Size(), 30000);
    EXPECT_TRUE(IsOpen());
}

TEST_F(AllocationTest, AnAnagramAsksForNoMemory)
{
    for (const bool arabic : {false, true}) {
        context.arabicAnagram = arabic;
        context.englishAnagram = !arabic;
        context.anagramLanguage = arabic;
        context.freeTextChars = arabic ? u"شسيبلاتنمك" : u"asdfjkl;Ae";
        for (const int lesson : {10, 14}) { // at once, and in Arabic late
            // The letters are drawn: the typist has met them all before the last run, which counts.
            constexpr int runs = 20;
            for (int run = 1; run <= runs; ++run) {
                OpenPlace(lesson, 5, Language::English);
                PerfectTypist typist(*this);
                Count count;
                const bool ended = typist.TypeToTheEnd(1000);
                EXPECT_EQ(run == runs ? count.Stop() : 0, 0) << lesson;
                ASSERT_TRUE(ended);
            }
        }
    }
}

TEST_F(AllocationTest, ModifiersAndKeysWithoutACapAskForNoMemory)
{
    for (const int lesson : {1, 14, 15}) {
        OpenPlace(lesson, 1, Language::Arabic);
        Count count;
        for (int code = 0; code <= 300; ++code) {
            if (CapOfKey(code) == noCap) {
                Key(code);
                Wait(30);
                Up(code);
            }
        }
        EXPECT_EQ(count.Stop(), 0) << lesson;
    }
}

} // namespace
} // namespace keyfluent::session
