/// @file
/// The parser that a host holds.
#ifndef KEXA_PARSER_H
#define KEXA_PARSER_H

#include <cstdint>
#include <set>
#include <string>

#include "kexa/creation_flags.h"
#include "kexa/event_handler.h"
#include "kexa/export.h"
#include "kexa/option.h"
#include "kexa/parse_result.h"
#include "kexa/result.h"

namespace kexa_3_3
{

/// Declares a command line, parses it, prints its help. The order of the virtual operations is a
/// contract with compiled hosts.
///
/// Ownership: made by createParser, owned by the host, destroyed by release. Returned texts belong
/// to the parser and stay valid until it is released; texts handed in are copied.
///
/// Exceptions: an operation throws only where its description says so. The event operations pass on
/// what a handler throws.
///
/// Threads: a parser, its options and its results are used by one thread at a time. Different
/// parsers may be used by different threads at the same time. All parsers of a process share the
/// trace switch and the counter that numbers values.
class IParser : public EventHandler
{
public:
    /// Destroys the parser with its options and texts. Registered handlers and results stay.
    virtual void release() = 0;

    /// Makes an empty result.
    ///
    /// @param[out] out  receives the result, which the host releases; null when there is no memory
    /// @return 0, or 3 when a standard exception ended the operation (out is then unchanged)
    virtual result_t createParseResult(IParseResult** out) = 0;

    /// Declares an option that takes values. A name that is taken already is reported on standard
    /// output.
    ///
    /// @param names        one to three names, split at ','. The first is the primary name; the
    ///                     third is a short form of at most two characters. None may be taken.
    /// @param description  the text for the help; null counts as empty
    /// @param valueType    one of value_type_t
    /// @param groupText    the help group, optionally followed by ':' and a text for the group; the
    ///                     text of the group's first declaration counts. The group "kexa_hidden" is
    ///                     left out of help unless requested. Null counts as empty.
    /// @return a record owned by the parser and overwritten by the next declaration: status 3 and
    ///         the option, or status 1 and null when the names are not accepted or there is no
    ///         memory (nothing is declared then)
    virtual const Registration& addOption(const wchar_t* names, const wchar_t* description,
                                          std::int32_t valueType, const wchar_t* groupText) = 0;

    /// Declares a switch, which acts as an action: a command line holds one action, or several that
    /// were declared compatible. Its names are its keywords. Arguments and record as for addOption.
    virtual const Registration& addSwitch(const wchar_t* names, const wchar_t* description,
                                          std::int32_t valueType, const wchar_t* groupText) = 0;

    /// Declares an option that takes values and is accepted only by actions that share one of its
    /// keywords. `keywords` is split at ','; null counts as empty. The other arguments and the
    /// record are as for addOption.
    virtual const Registration& addOptionWithKeywords(const wchar_t* names, const wchar_t* keywords,
                                                      const wchar_t* description,
                                                      std::int32_t valueType,
                                                      const wchar_t* groupText) = 0;

    /// Returns whether an option is declared under a name.
    ///
    /// @param name          compared in full, case-sensitive; null gives false
    /// @param switchesOnly  true for switches only, false for options that take values only
    /// @param group         null for any group, else the option's group must be equal to it
    virtual bool hasOption(const wchar_t* name, bool switchesOnly, const wchar_t* group) = 0;

    /// Parses an argument vector into a result. The arguments are read as they are when the call
    /// begins: what an event handler does to the vector or to its texts changes nothing.
    ///
    /// @param argc    the number of arguments, the program's name included; nothing is parsed where
    ///                it is below 2
    /// @param argv    `argc` texts, of which the first is ignored. A null text counts as an empty
    ///                argument; nothing is parsed where `argv` itself is null. Not modified.
    /// @param result  receives the defaults of all options, then what is found, up to the first
    ///                error. Must have been made by createParseResult to be filled. Null parses
    ///                without storing anything.
    /// @return a code of result_t. After a non-zero code getErrorMessage returns the reason; code
    ///         3, and code 1 for an option in the result that the parser does not know, leave the
    ///         message unchanged.
    virtual result_t parse(std::int32_t argc, const wchar_t* const* argv, IParseResult* result) = 0;

    /// Parses a text that holds one argument in each line, as an option file does. Blank lines and
    /// lines that begin with ';' or '#' are skipped. Defaults are not stored in the result.
    ///
    /// @param commandLine  the text; null counts as empty
    /// @param result       as for parse
    /// @return as parse
    virtual result_t parseCommandLine(const wchar_t* commandLine, IParseResult* result) = 0;

    /// Returns the message of the last failed parse, empty where none has failed. Never null.
    virtual const wchar_t* getErrorMessage() = 0;

    /// Returns the help of one option, an empty text where there is no memory.
    ///
    /// @param topic   a name of the option, in full, case-sensitive. Null gives the topic list, an
    ///                unknown name a text that says so, followed by the topic list.
    /// @param hidden  false leaves the group "kexa_hidden" out, true shows only that group
    virtual const wchar_t* showTopicHelp(const wchar_t* topic, bool hidden) = 0;

    /// Returns the declared switches with their descriptions, one in each line, sorted by name; an
    /// empty text where there is no memory.
    ///
    /// @param hidden  as for showTopicHelp
    virtual const wchar_t* getTopicList(bool hidden) = 0;

    /// Returns the help of the options that share a keyword with the named one, an empty text where
    /// there is no memory. Arguments as for showTopicHelp.
    virtual const wchar_t* showRelatedHelp(const wchar_t* topic, bool hidden) = 0;

    /// Returns the help of all options that take values and have no keyword, an empty text where
    /// there is no memory.
    ///
    /// @param hidden  as for showTopicHelp
    virtual const wchar_t* showFullHelp(bool hidden) = 0;

    /// Registers a handler. The host keeps owning it and removes it before destroying it.
    ///
    /// @return false, and nothing changed, where it is null or registered already
    /// @throws std::bad_alloc  where memory runs out
    virtual bool addEventHandler(EventHandler* handler) = 0;

    /// Removes a handler. Returns false where it was not registered.
    virtual bool removeEventHandler(EventHandler* handler) = 0;

    /// Lets the option "option-file" name files that hold further arguments, and declares it as a
    /// string option. Arguments as for addOption. Returns whether that declaration succeeded: false
    /// the second time, with option files still enabled.
    virtual bool enableOptionFiles(const wchar_t* description, const wchar_t* groupText) = 0;

    /// Lets the actions with the given primary names be given together. Every call adds a group.
    ///
    /// The set is an object of the standard library that the library reads as its own build lays it
    /// out. No compiler or linker notices a difference. Host and library therefore need:
    /// - GCC, Clang, MinGW: the same standard library, libstdc++ or libc++, and both or neither
    ///   built with `_GLIBCXX_DEBUG` (libstdc++; `_GLIBCXX_ASSERTIONS` may differ);
    /// - Visual C++: the same runtime, `/MD` or `/MDd` for both, and the same
    ///   `_ITERATOR_DEBUG_LEVEL`; a debug host needs a debug build of the library.
    ///
    /// @param actions  the names; copied
    /// @throws std::bad_alloc  where memory runs out; no group is added then
    virtual void addCompatibleActions(const std::set<std::wstring>& actions) = 0;

    virtual ~IParser() = default;
};

/// Makes a parser. Does not throw.
///
/// @param[out] out  receives the parser, which the host releases; null when there is no memory
/// @param flags     bits of creation_flags_t
/// @return 0, or 3 when a standard exception ended the operation (out is then unchanged)
KEXA_API result_t createParser(IParser** out, int flags);

} // namespace kexa_3_3

#endif
