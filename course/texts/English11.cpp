// English lesson 11: 1 2 0 3, then 4 to 9, arithmetic, and numbers among words.
#include "course/texts/LessonTexts.h"

namespace keyfluent::course
{
namespace
{

// clang-format off
constexpr Row exercise1[] = {
    u"aq1 ", u"aq2 ", u"lo0 ", u"sw3 ", u"aq1 ", u"aq2 ", u"lo0 ", u"sw3 ",
    u"12 ", u"30 ", u"102 ", u"203 ", u"1230 ", u"3021 ", u"110 ", u"330 ڑ",
    u"q1q ", u"2q2 ", u"0l0 ", u"3w3 ", u"a1l0 ", u"s3q2 ", u"o0q1 ", u"w3q2 ",
    u"10 ", u"20 ", u"31 ", u"23 ", u"100 ", u"200 ", u"310 ", u"320 ڑ",
    u"2001 ", u"2010 ", u"2013 ", u"1203 ", u"3012 ", u"1320 ", u"3210 ", u"1023 ",
    u"2:30 ", u"10:20 ", u"12:30 ", u"3:10 ", u"1:02 ", u"0:30 ", u"13:20 ", u"21:03 ڑ",
    u"3/12 ", u"10/31 ", u"1-2-3 ", u"3-2-1 ", u"0.12 ", u"2.03 ", u"1.30 ", u"3.10 ",
    u"120 ", u"210 ", u"301 ", u"130 ", u"213 ", u"312 ", u"123 ", u"321 ڑ",
    u"3001 ", u"1002 ", u"2130 ", u"2301 ",
};

constexpr Row exercise2[] = {
    u"de4 ", u"fr5 ", u"ft6 ", u"ju7 ", u"ju8 ", u"ki9 ", u"de4 ", u"fr5 ",
    u"ft6 ", u"ju7 ", u"ju8 ", u"ki9 ", u"d4k9 ", u"f5j8 ", u"t6u7 ", u"j8k9 ڑ",
    u"456 ", u"789 ", u"654 ", u"987 ", u"468 ", u"579 ", u"495 ", u"678 ",
    u"4567 ", u"8945 ", u"6789 ", u"9876 ", u"5498 ", u"7654 ", u"8549 ", u"6978 ڑ",
    u"4:56 ", u"7:59 ", u"8:45 ", u"9:47 ", u"5:48 ", u"6:49 ", u"7:56 ", u"9:58 ",
    u"4/9 ", u"5/8 ", u"6/7 ", u"8/4 ", u"9/6 ", u"7/5 ", u"6/8 ", u"5/4 ڑ",
    u"1984 ", u"1956 ", u"1978 ", u"1849 ", u"1967 ", u"1895 ", u"1476 ", u"1589 ",
    u"4.95 ", u"5.76 ", u"6.48 ", u"7.89 ", u"8.59 ", u"9.67 ", u"4.87 ", u"5.64 ڑ",
    u"456789 ", u"987654 ", u"475869 ", u"968574 ", u"496857 ", u"758694 ", u"547698 ", u"869475 ",
    u"45-67 ", u"89-54 ", u"76-98 ", u"48-59 ", u"69-75 ", u"84-96 ", u"57-84 ", u"95-68 ",
};

constexpr Row exercise3[] = {
    u"10.000*20.000*30.000*40.000*50.000 ڑ",
    u"2+2=4; 4+4=8; 8+8=16; 16+16=32 ڑ",
    u"12*12=144; 15*15=225; 25*25=625 ڑ",
    u"37*3=111; 37*6=222; 37*9=333 ڑ",
    u"1+2+3+4+5+6+7+8+9=45 ڑ",
    u"(7+8)*2=30; (9+6)*4=60; 10*(5+3)=80 ڑ",
    u"6 weeks * 7 days = 42 days; 42+18=60 ڑ",
    u"3 cats + 4 dogs = 7 pets; 7*4=28 paws",
};

constexpr Row exercise4[] = {
    u"Sleepy Owl Books, 14 Yawning Road ڑ",
    u"30527 Upper Pillow, Box 89 ڑ",
    u"Dizzy Dolphin Bakery, 268 Cinnamon Bun Lane ڑ",
    u"41683 Lower Puddle, Unit 3 ڑ",
    u"Seven Snails Express, 9 Late Letter Square ڑ",
    u"60158 Slow Harbor, Dock 34 ڑ",
    u"Left Boot Shoe Company, 127 Zigzag Alley ڑ",
    u"85940 Far Corner, Gate X6, Ring Twice",
};
// clang-format on

} // namespace

const LessonTexts english11 = {exercise1, exercise2, exercise3, exercise4, {}};

} // namespace keyfluent::course
