// What a parse found, as a host reads it.
#ifndef KEXA_PARSE_RESULT_H
#define KEXA_PARSE_RESULT_H

#include <cstdint>

#include "kexa/result.h"
#include "kexa/value.h"

namespace kexa_3_3
{

// Made by IParser::createParseResult, owned by the host, destroyed by release. It may be filled by
// several parses; what they find accumulates. It does not need the parser once filled.
//
// Names are compared in full, case counting; every name of an option finds it. A result has one
// query cursor: isPresent and getFirstValue move it, so two walks cannot be interleaved. Every text
// handed out stays valid until the result is released. A result is used by one thread at a time.
// No operation throws.
class IParseResult
{
public:
    // Destroys the result; the pointer must not be used afterwards.
    virtual void release() = 0;

    // Whether the option was given at a position p with from <= p < to, or else was not given at
    // all and has a default whose text is not empty (then the range is not looked at). 1 yes, 0 no.
    // A null name is unknown.
    virtual std::int32_t isPresent(const wchar_t* name, std::int32_t from, std::int32_t to) = 0;

    // Begins a walk over the values of an option.
    //
    // out:  receives the value; may be null. On a non-zero answer it becomes the not-found value
    //       with that answer as its status.
    // from: first position of the walk, inclusive.
    // to:   end of the walk. Some occurrence must lie at a position p with from <= p < to; a value
    //       at exactly `to` is still given.
    //
    // Answers 0 with a value, 1 when there is none, 3 after a standard exception. An occurrence
    // without a value gives its position, null data and a null variant. A default
    // whose text is not empty is given when the option did not occur, whatever the range.
    virtual result_t getFirstValue(Value* out, const wchar_t* name, std::int32_t from,
                                   std::int32_t to) = 0;

    // The next value of the walk. name: not looked at, the cursor decides. Answers and `out` as for
    // getFirstValue; 1 at the end of the walk and where no walk was begun.
    virtual result_t getNextValue(Value* out, const wchar_t* name) = 0;

    // The next position of the walk's option, 2147483647 when there is none left (or no walk).
    virtual std::int32_t getNextPosition() = 0;

    // Begins a walk over the arguments that were left over. out: receives the argument, not written
    // on a non-zero answer; may be null. Answers 0, 1 when there is none, or 3.
    virtual result_t getFirstUnparsed(const wchar_t** out) = 0;

    // The next left-over argument; out and answers as for getFirstUnparsed.
    virtual result_t getNextUnparsed(const wchar_t** out) = 0;

    virtual ~IParseResult() = default;
};

} // namespace kexa_3_3

#endif
