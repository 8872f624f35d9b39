"""The binary contract with compiled hosts: virtual operations by slot, members by offset."""

EVENT_HANDLER = [
    "onOptionParsed",  # slot 0
    "onValueParsed",
    "onUnknownArgument",
]

PARSER = EVENT_HANDLER + [
    "release",  # slot 3
    "createParseResult",
    "addOption",  # slot 5
    "addSwitch",
    "addOptionWithKeywords",
    "hasOption",
    "parse",
    "parseCommandLine",  # slot 10
    "getErrorMessage",
    "showTopicHelp",
    "getTopicList",
    "showRelatedHelp",
    "showFullHelp",  # slot 15
    "addEventHandler",
    "removeEventHandler",
    "enableOptionFiles",
    "addCompatibleActions",
    "destructor",  # slot 20, and 21 with GCC, where a destructor takes two
]

# The slots after the destructor are not part of the interface.
BASIC_PARSER = PARSER + [
    "parseArguments",
    "parseVector",
    "checkActions",
]

OPTION = [
    "addName",
    "addAllowedValue",
    "addDeprecatedValue",
    "setDefaultValue",
    "setSeparator",
    "setMarked",
    "addKeywords",
    "destructor",
]

PARSE_RESULT = [
    "release",
    "isPresent",
    "getFirstValue",
    "getNextValue",
    "getNextPosition",
    "getFirstUnparsed",
    "getNextUnparsed",
    "destructor",
]

# Classes of contract.cpp, each derived from one interface. The interfaces themselves do not serve:
# GCC dumps a pure operation without its name.
TABLES = {
    "anonymous::Handler": EVENT_HANDLER,
    "anonymous::Parser": PARSER,
    "anonymous::Option": OPTION,
    "anonymous::ParseResult": PARSE_RESULT,
}

PRIVATE_TABLES = {"anonymous::LibraryParser": BASIC_PARSER}

# Name: size, {member: offset}, all in bytes.
RECORDS = {
    "vexkit2::variant_t": (16, {"m_value": 0, "m_type": 8}),
    "kexa_3_3::Value": (32, {"data": 0, "status": 8, "position": 12, "value": 16}),
    "kexa_3_3::Registration": (16, {"option": 0, "status": 8}),
    "kexa_3_3::ValueRecord": (32, {"optionName": 0, "value": 8, "sequenceNumber": 24}),
    "kexa_3_3::WordWrappedText": (32, {"m_text": 0}),
}

# Pairs of declarations whose exchange has to be reported: header, one declaration, the other.
SWAPS = [
    ("event_handler.h", "onOptionParsed", "onUnknownArgument"),
    ("parser.h", "release", "createParseResult"),
    ("parser.h", "addOption", "addSwitch"),
    ("parser.h", "getTopicList", "showFullHelp"),
    ("parser.h", "addEventHandler", "removeEventHandler"),
    ("parser.h", "addCompatibleActions", "~IParser"),
    ("option.h", "addName", "addKeywords"),
    ("parse_result.h", "getFirstUnparsed", "getNextUnparsed"),
    ("value.h", "status", "position"),
    ("option.h", "option", "status"),
]
