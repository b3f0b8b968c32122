// The numbers of the pictures that a lesson shows.
#pragma once

namespace keyfluent::session
{

// "In" looks are lit by the pointer, "out" looks are plain.
inline constexpr int stopIn = 106;
inline constexpr int stopOut = 107;
inline constexpr int restIn = 200;
inline constexpr int restOut = 201;
inline constexpr int resumeIn = 202;
inline constexpr int resumeOut = 203;

// The five pictures of a hand's fingers follow the picture of its rest: thumb, index, middle, ring,
// little finger. The coloured set has its own numbers.
inline constexpr int leftHandAtRest = 113;
inline constexpr int rightHandAtRest = 119;
inline constexpr int colouredHandOffset = 1000;

} // namespace keyfluent::session
