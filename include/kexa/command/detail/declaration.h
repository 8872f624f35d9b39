// What is declared about one option, action, positional argument or subcommand.
#ifndef KEXA_COMMAND_DETAIL_DECLARATION_H
#define KEXA_COMMAND_DETAIL_DECLARATION_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kexa/command/configuration.h"
#include "kexa/variant.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

struct Declaration;
class Core;

// One value on its way into a member.
struct Input
{
    // As the parser converted it: the kind is MemberOperations::rawType, or wide text where the
    // option has a table of named values.
    const vexkit2::variant_t* value;
    const Declaration* declaration;

    std::string reason; // set where the value is refused
};

// A rule of the program. Works on an element (the value of a scalar, one value of a list) or on the
// whole struct.
class Rule
{
public:
    Rule() = default;
    Rule(const Rule&) = delete;
    Rule& operator=(const Rule&) = delete;
    virtual ~Rule() = default;

    // Returns why the object is refused; empty where it is not.
    virtual std::string refuse(const void* object) const = 0;
};

// Values that are given by name.
class ValueTable
{
public:
    ValueTable() = default;
    ValueTable(const ValueTable&) = delete;
    ValueTable& operator=(const ValueTable&) = delete;
    virtual ~ValueTable() = default;

    // Copies the value of a name that is in the table into an element.
    void read(std::string_view name, void* element) const;

    // Returns the name of an element's value, empty where it has none.
    std::string nameOf(const void* element) const;

    std::vector<std::string> names;

protected:
    virtual void copyTo(std::size_t index, void* element) const = 0;
    virtual bool equals(std::size_t index, const void* element) const = 0;
};

// What the layer does with members of one type. One static table for each type.
struct MemberOperations
{
    std::int32_t rawType;                      // a value_type_t
    const char* typeName;                      // for the help
    bool list;                                 // grows by repetition
    bool named;                                // can be read only through a table of named values
    bool (*store)(void* member, Input& input); // false: refused, the reason is in input
    void (*clear)(void* member);
    // Appends the text of each element that the member holds.
    void (*texts)(const void* member, const Declaration& declaration,
                  std::vector<std::string>& texts);
    // Returns why the first refused element of a default is refused; empty where none is.
    std::string (*refuseDefault)(const void* member, const Declaration& declaration);
    std::string (*lowest)(); // the limits of a number's type, empty for other types
    std::string (*highest)();
};

enum class Kind : unsigned char
{
    option,     // takes a value, or is boolean
    count,      // counts how often it is given
    action,     // an action
    positional, // takes arguments by their position
    rest,       // takes all arguments behind the positional ones
    subcommand, // a verb with a command of its own
    help,
    version,
    optionFile
};

struct Declaration
{
    Kind kind = Kind::option;
    std::size_t index = 0;          // among the declarations of the command
    std::vector<std::string> names; // the primary one first, hidden ones last
    std::size_t shownNames = 0;     // the number of names that are not hidden
    std::string description;
    std::string group;
    std::string valueName;
    std::string environment;
    std::string deprecation; // what to do instead; empty where the option is not deprecated
    std::string implicitText;
    bool isImplicit = false;
    bool required = false;
    bool hidden = false;
    char separator = 0;

    std::size_t offset = 0; // of the member in the struct
    const MemberOperations* member = nullptr;
    void (*increment)(void* member) = nullptr; // Kind::count

    std::vector<vexkit2::variant_t> allowed;
    std::vector<std::pair<vexkit2::variant_t, vexkit2::variant_t>> deprecated;
    std::unique_ptr<ValueTable> table;
    std::vector<std::unique_ptr<Rule>> rules;
    std::string lowest; // the limits of range()
    std::string highest;
    std::vector<std::size_t> actions; // the indices of the actions that accept the option

    std::size_t minimum = 0; // how many arguments a positional one takes
    std::size_t maximum = 1;

    std::shared_ptr<Core> command;            // Kind::subcommand
    void* (*emplace)(void* member) = nullptr; // Kind::subcommand: makes the inner struct

    bool takesValue() const
    {
        return kind == Kind::optionFile || (kind == Kind::option && !isFlag()) ||
               kind == Kind::positional || kind == Kind::rest;
    }
    bool isFlag() const
    {
        return kind == Kind::option && member != nullptr && member->rawType == 0 &&
               table == nullptr;
    }
};

// Returns why the option's rules refuse an element; empty where none does.
std::string refuseElement(const Declaration& declaration, const void* element);

// Appends the text of an element: its name where the option has a table.
void appendElement(std::vector<std::string>& texts, const Declaration& declaration,
                   const void* element, std::string text);

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
