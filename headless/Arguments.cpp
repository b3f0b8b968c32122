#include "headless/Arguments.h"

#include "headless/Json.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace keyfluent::headless
{
namespace
{

constexpr std::string_view blanks = " \t\r";

std::string_view ReadWord(std::string_view line, std::size_t& position)
{
    const std::size_t end = std::min(line.find_first_of(blanks, position), line.size());
    const std::string_view word = line.substr(position, end - position);
    position = end;
    return word;
}

} // namespace

Arguments::Arguments(std::string_view line)
{
    std::size_t position = line.find_first_not_of(blanks);
    command_ = ReadWord(line, position);
    while ((position = line.find_first_not_of(blanks, position)) != std::string_view::npos) {
        Argument argument;
        if (line[position] == '"') {
            argument.isString = true;
            if (!ReadQuoted(line, position, argument.text) ||
                (position < line.size() && blanks.find(line[position]) == std::string_view::npos)) {
                throw UsageError("a string is not well formed");
            }
        } else {
            argument.word = ReadWord(line, position);
        }
        arguments_.push_back(std::move(argument));
    }
}

void Arguments::Expect(int count) const
{
    if (Count() != count) {
        throw UsageError(command_ + " takes " + std::to_string(count) + " arguments, not " +
                         std::to_string(Count()));
    }
}

const Arguments::Argument& Arguments::At(int index) const
{
    if (index >= Count()) {
        throw UsageError(command_ + " wants more arguments");
    }
    return arguments_[static_cast<std::size_t>(index)];
}

std::string_view Arguments::Word(int index) const
{
    const Argument& argument = At(index);
    if (argument.isString) {
        throw UsageError("a word is wanted, not a string");
    }
    return argument.word;
}

std::u16string_view Arguments::String(int index) const
{
    const Argument& argument = At(index);
    if (!argument.isString) {
        throw UsageError("a string in quotes is wanted, not " + argument.word);
    }
    return argument.text;
}

bool Arguments::Boolean(int index) const
{
    return Choice(index, "true", "false");
}

std::int64_t Arguments::Integer(int index, std::int64_t low, std::int64_t high) const
{
    const std::string_view word = Word(index);
    std::int64_t number = 0;
    const auto result = std::from_chars(word.data(), word.data() + word.size(), number);
    if (result.ec != std::errc() || result.ptr != word.data() + word.size()) {
        throw UsageError("a whole number is wanted, not " + std::string(word));
    }
    if (number < low || number > high) {
        throw UsageError("the number " + std::string(word) + " is out of range");
    }
    return number;
}

std::int32_t Arguments::Int32(int index) const
{
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(Integer(index, Limits::min(), Limits::max()));
}

double Arguments::Real(int index, double low, double below) const
{
    const std::string_view word = Word(index);
    double number = 0;
    const auto result = std::from_chars(word.data(), word.data() + word.size(), number);
    if (result.ec != std::errc() || result.ptr != word.data() + word.size()) {
        throw UsageError("a number is wanted, not " + std::string(word));
    }
    if (!(number >= low && number < below)) {
        throw UsageError("the number " + std::string(word) + " is out of range");
    }
    return number;
}

bool Arguments::Choice(int index, std::string_view yes, std::string_view no) const
{
    return OneOf(index, {yes, no}) == 0;
}

int Arguments::OneOf(int index, std::initializer_list<std::string_view> words) const
{
    const std::string_view given = Word(index);
    int number = 0;
    for (const std::string_view word : words) {
        if (word == given) {
            return number;
        }
        ++number;
    }
    throw UsageError(command_ + " does not know " + std::string(given));
}

} // namespace keyfluent::headless
