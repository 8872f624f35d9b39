// From what the user typed to arguments that the parser takes for exactly what was meant.
#ifndef KEXA_COMMAND_PRIVATE_SCAN_H
#define KEXA_COMMAND_PRIVATE_SCAN_H

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "State.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

// Where an argument stands.
struct Place
{
    int index = 0;        // as in Error
    std::size_t file = 0; // the number of the option file in Scan::files(), from 1; 0 for none
    int line = 0;
};

struct Argument
{
    std::wstring text;
    Place place;
};

// One option, action or positional argument of the line.
struct Given
{
    const Declaration* declaration = nullptr; // null for an option of the parser beneath
    std::wstring raw; // the argument for the parser; empty where it is the one that was typed
    const std::wstring* typed = nullptr; // as the user typed it, for messages; not owned
    Place place;
    bool isEmptyText = false;

    const std::wstring& argument() const { return raw.empty() ? *typed : raw; }
};

// The first mistake that no parser is needed to see.
struct Fault
{
    bool isFound = false;
    std::vector<std::wstring> raw; // arguments that make the parser say so; else `message` is set
    std::string message;
    std::wstring typed;
    std::string hint;
    int code = 2;
    const Declaration* declaration = nullptr;
    Place place;
};

class Scan
{
public:
    explicit Scan(State& state, std::vector<std::string>& files);

    // Takes a whole command line.
    void take(std::vector<Argument> arguments);

    State& state() const { return *m_state; }
    const std::vector<Given>& givens() const { return m_givens; }
    const Fault& fault() const { return m_fault; }
    bool isTraced() const { return m_isTraced; }

    // The option for help or the version, where it was given, and what --help= names.
    const Declaration* wanted() const { return m_wanted; }
    const std::wstring& topic() const { return m_topic; }

    // The part of the line that a subcommand has; null where there is none.
    Scan* inner() const { return m_inner.get(); }
    const Declaration* subcommand() const { return m_subcommand; }

    // How many arguments a positional one is short of, after take().
    const Declaration* missing() const { return m_missing; }

private:
    void walk();
    void takeOption(const Argument& argument);
    void takeMatched(const NameEntry& entry, std::wstring_view value, bool hasEquals);
    void takeOptionBeneath();
    bool isTopicNext() const;
    void takeFlag(const NameEntry& entry, std::wstring_view value);
    void takeValue(const Declaration& declaration, std::wstring_view value, bool hasEquals);
    void takeNextValue(const Declaration& declaration);
    bool takeRepeatedLetter(std::wstring_view text);
    bool takeBundle(std::wstring_view text);
    bool isBundle(std::wstring_view text) const;
    void takePlain(bool isBehindMarker);
    bool takeVerb();
    void beginSubcommand(const Declaration& verb);
    void readOptionFiles();
    bool isAccepted(const Declaration& positional) const;
    void distribute();

    bool resolves(std::wstring_view argument) const;
    NameMatch match(std::wstring_view name) const;
    bool takesRest() const;

    // Returns "--name=value".
    std::wstring rawArgument(const Declaration& declaration, std::wstring_view value) const;

    void add(const Declaration& declaration, std::wstring raw);
    void addEmptyText(const Declaration& declaration);
    Fault* fail(const Declaration* declaration, std::vector<std::wstring> raw);
    void failUnknown(const Argument& argument);

    const Argument& current() const { return m_arguments[m_next]; }

    State* m_state;
    std::vector<std::string>* m_files;
    std::vector<Argument> m_arguments;          // of the command line, then of each option file
    std::vector<std::vector<Argument>> m_taken; // those before, which m_givens refer to
    std::size_t m_next = 0;
    std::vector<Given> m_givens;
    std::vector<std::size_t> m_plain; // which of m_givens are positional
    Fault m_fault;
    const Declaration* m_wanted = nullptr;
    std::wstring m_topic;
    std::unique_ptr<Scan> m_inner;
    const Declaration* m_subcommand = nullptr;
    const Declaration* m_missing = nullptr;
    std::size_t m_plainBeforeRest = static_cast<std::size_t>(-1);
    std::size_t m_plainCount = 0;
    bool m_isTraced = false;
    bool m_isActionGiven = false;
    bool m_isVerbSought = false;
};

// Splits an argument behind its hyphens into a name and what stands behind it.
struct SplitArgument
{
    std::wstring_view name;
    std::wstring_view value;
    bool hasEquals = false;
};
SplitArgument splitArgument(std::wstring_view argument);

} // namespace detail
} // namespace v1
} // namespace kexa

#endif
