// One command line to measure: the options declared, the arguments given, and the values expected.
#ifndef KEXA_BENCHMARKS_WORKLOAD_H
#define KEXA_BENCHMARKS_WORKLOAD_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace benchmarks
{

// The seven value types that every contestant converts to.
enum class Type
{
    flag,      // takes no value; its number of occurrences is read
    integer,   // signed, 32 bits
    natural,   // unsigned, 32 bits
    integer64, // signed, 64 bits
    natural64, // unsigned, 64 bits
    real,      // double
    text
};

struct Option
{
    std::string name; // long name
    char letter = 0;  // short name, 0 for none
    Type type = Type::text;
    std::string description;
    bool repeated = false;                  // may be given more than once
    bool list = false;                      // a value is split into items at every comma
    std::vector<std::string> allowedValues; // empty: every value is accepted

    // The members above as wide text, which a host would write as literals.
    std::wstring wideName;
    std::wstring wideNames; // "name" or "name,letter"
    std::wstring wideDescription;
    std::vector<std::wstring> wideAllowedValues;
};

// A value that a contestant must read, in the member for its kind. A flag has no readings: its
// occurrences are counted.
struct Reading
{
    explicit Reading(std::int64_t value) : kind(Type::integer64), integer(value) {}
    explicit Reading(std::uint64_t value) : kind(Type::natural64), natural(value) {}
    explicit Reading(double value) : kind(Type::real), real(value) {}
    explicit Reading(std::string value) : kind(Type::text), text(std::move(value)) {}
    friend bool operator==(const Reading&, const Reading&) = default;

    Type kind;
    std::int64_t integer = 0;
    std::uint64_t natural = 0;
    double real = 0;
    std::string text;
};

// What one option must be read as.
struct Expectation
{
    std::uint64_t count = 0;       // occurrences of a flag
    std::vector<Reading> readings; // values of any other type, in the order given
};

class Workload
{
public:
    explicit Workload(std::string name) : m_name(std::move(name)) {}
    Workload(const Workload&) = delete;
    Workload& operator=(const Workload&) = delete;

    // Declares an option and returns its index.
    std::size_t addOption(Option option);

    // Appends "--name" for a flag.
    void addFlag(std::size_t option);

    // Appends "--name=value" (UTF-8), where name is the option's name or, when given, the
    // abbreviation. items are the values that must be read from it.
    void addValue(std::size_t option, std::string_view value, const std::vector<Reading>& items,
                  std::string_view abbreviation = {});

    // Makes the argument vectors. Call it once, after the last option and argument were added.
    void seal();

    const std::string& name() const noexcept { return m_name; }
    const std::vector<Option>& options() const noexcept { return m_options; }
    const std::vector<Expectation>& expectations() const noexcept { return m_expectations; }

    // The arguments, without the program's name.
    const std::vector<std::string>& arguments() const noexcept { return m_arguments; }
    const std::vector<std::wstring>& wideArguments() const noexcept { return m_wideArguments; }

    // Argument vectors with the program's name in front, followed by a null pointer that
    // argumentCount does not count.
    int argumentCount() const noexcept { return static_cast<int>(m_arguments.size()) + 1; }
    const std::vector<const char*>& argumentVector() const noexcept { return m_argumentVector; }
    const std::vector<const wchar_t*>& wideArgumentVector() const noexcept
    {
        return m_wideArgumentVector;
    }

private:
    std::string m_name;
    std::vector<Option> m_options;
    std::vector<Expectation> m_expectations;
    std::vector<std::string> m_arguments;
    std::vector<std::wstring> m_wideArguments;
    std::vector<const char*> m_argumentVector;
    std::vector<const wchar_t*> m_wideArgumentVector;
};

// Convert well-formed UTF-8 to wide text and back.
std::wstring widen(std::string_view text);
std::string narrow(std::wstring_view text);

} // namespace benchmarks

#endif
