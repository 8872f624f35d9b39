// The parser that a host holds.
#ifndef KEXA_PARSER_H
#define KEXA_PARSER_H

#include <cstdint>
#include <set>
#include <string>

#include "kexa/event_handler.h"
#include "kexa/export.h"
#include "kexa/option.h"
#include "kexa/parse_result.h"
#include "kexa/result.h"

namespace kexa_3_3
{

// Bits of the flags word given to createParser. Other bits are kept and mean nothing.
enum creation_flags_t : std::int32_t
{
    // An argument that nothing takes ends the parse with code 2 and "Unknown option: ", unless an
    // event handler takes it. Without this flag such an argument is dropped.
    flag_unknown_is_error = 2,

    // Behind the end marker "--", flag 8 does not apply: hyphen-led arguments are positional there.
    flag_any_positional_after_marker = 4,

    // An argument that begins with "-" does not become positional by itself. Flag 16 still takes it
    // as part of the rest, and flag 4 lifts this behind "--".
    flag_no_hyphen_positional = 8,

    // The first positional argument takes all arguments behind it too.
    flag_positional_takes_rest = 16,

    // Values are not cut into lists: new options have no separator instead of ','.
    flag_no_value_lists = 32
};

// Declares a command line, parses it, explains it. Made by createParser, owned by the host,
// destroyed by release. The order of the virtual operations is a contract with compiled hosts.
//
// Texts that operations hand out belong to the parser and stay valid until it is released; texts
// handed in are copied. No operation throws except where it says so; the event operations pass on
// what a handler throws. A parser, its options and its results are used by one thread at a time;
// different parsers may be used by different threads (the trace switch and the numbering of values
// are shared by all of them, see docs/design.md).
class IParser : public EventHandler
{
public:
    // Destroys the parser with its options and texts. Registered handlers and results stay.
    virtual void release() = 0;

    // Makes an empty result. out: receives it, null when there is no memory; the host releases it.
    // Answers 0, or 3 when the new result could not be built (out is then unchanged).
    virtual result_t createParseResult(IParseResult** out) = 0;

    // Declares an option that takes values.
    //
    // names:       one to three names, split at ','; the first is the primary name. The third,
    // where
    //              given, is a short form of at most two characters. No name may be taken already.
    // description: the text for the help; null counts as empty.
    // valueType:   one of value_type_t.
    // groupText:   the help group, optionally followed by ':' and a text for the group; the text of
    //              the first declaration of a group counts. The group "kexa_hidden" is left out of
    //              help unless asked for. Null counts as empty.
    //
    // Answers a record owned by the parser, overwritten by the next declaration: status 3 and the
    // option, or status 1 and null when the names are not accepted or there is no memory (nothing
    // is declared then). A taken name is reported on standard output.
    virtual const Registration& addOption(const wchar_t* names, const wchar_t* description,
                                          std::int32_t valueType, const wchar_t* groupText) = 0;

    // Declares a switch, which acts as an action: a command line names one action, or several that
    // were declared compatible. Its names are its keywords. Arguments and answer as for addOption.
    virtual const Registration& addSwitch(const wchar_t* names, const wchar_t* description,
                                          std::int32_t valueType, const wchar_t* groupText) = 0;

    // Declares an option that takes values and is accepted only by actions that share one of its
    // keywords. keywords: split at ','; null counts as empty. Otherwise as addOption.
    virtual const Registration& addOptionWithKeywords(const wchar_t* names, const wchar_t* keywords,
                                                      const wchar_t* description,
                                                      std::int32_t valueType,
                                                      const wchar_t* groupText) = 0;

    // Whether an option is declared under a name.
    // name:         compared in full, case counting; null answers false.
    // switchesOnly: true looks at switches only, false at options that take values only.
    // group:        null for any group, else the option's group must equal it.
    virtual bool hasOption(const wchar_t* name, bool switchesOnly, const wchar_t* group) = 0;

    // Parses an argument vector into a result.
    //
    // argc:   the number of arguments, the program's name included; below 2 there is nothing to
    //         parse.
    // argv:   argc texts; argv[0] is not looked at. A null entry counts as an empty argument, a
    // null
    //         argv as no arguments. Only read, and only during the call; they stay unchanged so
    //         long.
    // result: receives the defaults of all options, then what is found, up to the first error; null
    //         parses without storing. Must have been made by createParseResult to be filled.
    //
    // Answers a code of result_t. After a non-zero code getErrorMessage tells what is wrong (code
    // 3, and code 1 for an option in the result that the parser does not know, leave the message as
    // it was).
    virtual result_t parse(std::int32_t argc, const wchar_t* const* argv, IParseResult* result) = 0;

    // Parses a text that holds one argument in each line, as an option file does (blank lines and
    // lines that begin with ';' or '#' are skipped). null counts as empty. Defaults are not handed
    // to the result. Otherwise as parse.
    virtual result_t parseCommandLine(const wchar_t* commandLine, IParseResult* result) = 0;

    // The message of the last failed parse, empty where none has failed. Never null.
    virtual const wchar_t* getErrorMessage() = 0;

    // The help of the option with the given name (in full, case counting). A null topic gives the
    // topic list; an unknown one a text that says so, followed by the topic list.
    // hidden: false leaves the group "kexa_hidden" out, true shows only that group.
    // Answers an empty text where there is no memory.
    virtual const wchar_t* showTopicHelp(const wchar_t* topic, bool hidden) = 0;

    // The declared switches with their descriptions, one in each line, by name. hidden as above.
    virtual const wchar_t* getTopicList(bool hidden) = 0;

    // The help of the options that share a keyword with the option named. Null, unknown and hidden
    // as for showTopicHelp.
    virtual const wchar_t* showRelatedHelp(const wchar_t* topic, bool hidden) = 0;

    // The help of all options that take values and have no keyword. hidden as above.
    virtual const wchar_t* showFullHelp(bool hidden) = 0;

    // Registers a handler; the host keeps owning it and removes it before it dies. False, and
    // nothing changed, where it is registered already or null. Throws std::bad_alloc.
    virtual bool addEventHandler(EventHandler* handler) = 0;

    // Removes a handler. False where it was not registered.
    virtual bool removeEventHandler(EventHandler* handler) = 0;

    // Lets the option "option-file" name files that hold further arguments, and declares it as a
    // string option. Arguments as for addOption. True when that declaration succeeded; false the
    // second time, with option files staying enabled.
    virtual bool enableOptionFiles(const wchar_t* description, const wchar_t* groupText) = 0;

    // Lets the actions with the given primary names be given together. May be called several times;
    // every call adds a group. Throws std::bad_alloc, and nothing is added then.
    virtual void addCompatibleActions(const std::set<std::wstring>& actions) = 0;

    virtual ~IParser() = default;
};

// Makes a parser.
//
// out:   receives the parser, which the host releases; null when there is no memory for it.
// flags: bits of creation_flags_t.
//
// Answers 0, or 3 when a standard exception arose while it was built (out is then unchanged).
KEXA_API result_t createParser(IParser** out, int flags);

} // namespace kexa_3_3

#endif
