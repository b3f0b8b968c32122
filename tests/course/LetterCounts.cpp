#include "LetterCounts.h"

#include "TaughtKeys.h"
#include "context/Text.h"

#include <numeric>

namespace keyfluent::course::fixtures
{
namespace
{

using Uses = std::map<std::u16string, UsesByLesson>;

char16_t Small(char16_t letter)
{
    return letter >= u'A' && letter <= u'Z' ? static_cast<char16_t>(letter - u'A' + u'a') : letter;
}

std::string Cells(const UsesByLesson& uses)
{
    std::string cells;
    for (const int count : uses) {
        cells += " " + (count == 0 ? std::string("·") : std::to_string(count)) + " |";
    }
    return cells + " " + std::to_string(Total(uses)) + " |\n";
}

std::string Heading(std::string_view first)
{
    std::string names = "| " + std::string(first) + " |";
    std::string rule = "|---|";
    for (int lesson = 1; lesson <= lessonCount; ++lesson) {
        names += " " + std::to_string(lesson) + " |";
        rule += "--:|";
    }
    return names + " all |\n" + rule + "--:|\n";
}

std::string Table(std::string_view first, const std::vector<std::u16string>& entries,
                  const Uses& uses)
{
    std::string table = Heading(first);
    for (const std::u16string& entry : entries) {
        const auto found = uses.find(entry);
        table += "| `" + context::ToUtf8(entry) + "` |";
        table += Cells(found == uses.end() ? UsesByLesson{} : found->second);
    }
    return table;
}

std::vector<std::u16string> KeysInOrder(bool arabic)
{
    std::vector<std::u16string> keys;
    for (const char16_t key : TeachableKeys(arabic)) {
        keys.emplace_back(1, key);
    }
    return keys;
}

std::string Section(bool arabic)
{
    const std::string language = arabic ? "Arabic" : "English";
    return "\n## " + language + ": characters\n\n" +
           Table("key", KeysInOrder(arabic), CharacterUses(arabic)) + "\n## " + language +
           ": the hundred most frequent pairs\n\n" +
           Table("pair", FrequentPairs(arabic), PairUses(arabic));
}

} // namespace

int Total(const UsesByLesson& uses)
{
    return std::accumulate(uses.begin(), uses.end(), 0);
}

Uses CharacterUses(bool arabic)
{
    Uses uses;
    for (const Place& place : TextPlaces()) {
        if (place.arabic == arabic) {
            for (const Row row : RowsAt(place)) {
                for (const char16_t character : row) {
                    ++uses[{character}][static_cast<std::size_t>(place.lesson - 1)];
                }
            }
        }
    }
    return uses;
}

Uses PairUses(bool arabic)
{
    Uses uses;
    for (const Place& place : TextPlaces()) {
        if (place.arabic != arabic) {
            continue;
        }
        for (const std::u16string& line : LinesAt(place)) {
            for (const std::u16string& word : WordsIn(line)) {
                for (std::size_t at = 0; at + 1 < word.size(); ++at) {
                    const std::u16string pair{Small(word[at]), Small(word[at + 1])};
                    ++uses[pair][static_cast<std::size_t>(place.lesson - 1)];
                }
            }
        }
    }
    return uses;
}

std::string LetterDocument()
{
    return "# The letters of the course\n\n"
           "How often the exercise texts use each key and the most frequent pairs of letters, by "
           "lesson. The\nprogram `keyfluent_letter_table` prints this page from the texts; a test "
           "compares them. After a\nchange to the texts:\n\n"
           "    keyfluent_letter_table > docs/course-letters.md\n\n"
           "Pairs are counted inside words, English capitals in them as small letters. A dot "
           "stands for none.\nThe hundred pairs are, for English, those that lead in large counts "
           "over printed books; for Arabic,\nthose with the highest mean share in a spelling "
           "dictionary, the messages of a desktop, and the\nnotes and pages of this program. "
           "They stand in that order.\n" +
           Section(false) + Section(true);
}

} // namespace keyfluent::course::fixtures
