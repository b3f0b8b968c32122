// One line of the console, cut into its word and its arguments. What is wrong with a line is thrown
// as a UsageError, which ends the console with its plain sentence.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace keyfluent::headless
{

class UsageError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

class Arguments
{
public:
    // The line holds at least one word. Words are divided by blanks; an argument that begins with a
    // quote is a JSON string.
    explicit Arguments(std::string_view line);

    const std::string& Command() const { return command_; }
    int Count() const { return static_cast<int>(arguments_.size()); }

    // Throws unless there are just so many.
    void Expect(int count) const;

    // The argument of an index from 0 on, by its kind; each throws where it is something else.
    std::string_view Word(int index) const;
    std::u16string_view String(int index) const;
    bool Boolean(int index) const; // true or false
    std::int64_t Integer(int index, std::int64_t low, std::int64_t high) const;
    std::int32_t Int32(int index) const;
    double Real(int index, double low, double below) const; // low <= number < below
    // True for yes, false for no; anything else is an error.
    bool Choice(int index, std::string_view yes, std::string_view no) const;
    // The index of the word in the list.
    int OneOf(int index, std::initializer_list<std::string_view> words) const;

private:
    struct Argument {
        std::string word;
        std::u16string text;
        bool isString = false;
    };

    const Argument& At(int index) const;

    std::string command_;
    std::vector<Argument> arguments_;
};

} // namespace keyfluent::headless
