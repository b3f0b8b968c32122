// Finds what a table says of a character with one look, however long the table is. Built at compile
// time from a table that a person can read.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace keyfluent::keyboard
{

// Maps characters of the blocks U+0000 to U+00FF and U+0600 to U+06FF, which hold all that the
// tables speak of, to numbers from 0 to 127. Every other character is not in any table.
class CharacterIndex
{
public:
    static constexpr int none = -1;

    constexpr CharacterIndex() { entries.fill(none); }

    // Stops the compilation where a character is entered a second time.
    constexpr void Add(std::u16string_view characters, int number)
    {
        for (char16_t character : characters) {
            if (Entry(character) != none) {
                throw "a character stands twice in a table";
            }
            Set(character, number);
        }
    }

    // Stops the compilation where a character has not been added before.
    constexpr void Replace(char16_t character, int number)
    {
        if (Entry(character) == none) {
            throw "an exception to a table names a character that the table does not hold";
        }
        Set(character, number);
    }

    // A whole string is looked up: the empty one and one of several characters are in no table.
    constexpr int Find(std::u16string_view character) const
    {
        return character.size() == 1 ? Entry(character[0]) : none;
    }

private:
    static constexpr int SlotOf(char16_t character)
    {
        if (character < 0x100) {
            return character;
        }
        return character >= 0x600 && character < 0x700 ? character - 0x500 : none;
    }

    constexpr int Entry(char16_t character) const
    {
        const int slot = SlotOf(character);
        return slot == none ? none : entries[static_cast<std::size_t>(slot)];
    }

    constexpr void Set(char16_t character, int number)
    {
        if (number < 0 || number > 127) {
            throw "a number does not fit";
        }
        entries.at(static_cast<std::size_t>(SlotOf(character))) = static_cast<std::int8_t>(number);
    }

    std::array<std::int8_t, 0x200> entries;
};

} // namespace keyfluent::keyboard
