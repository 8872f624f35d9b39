// Option sets for positional options, and for actions with the options that they accept.
#include "kexa/parser.h"
#include "OptionSets.h"

namespace naive
{

using kexa_3_3::flag_any_positional_after_marker;
using kexa_3_3::flag_no_hyphen_positional;
using kexa_3_3::flag_no_value_lists;
using kexa_3_3::flag_positional_takes_rest;
using kexa_3_3::flag_unknown_is_error;
using kexa_3_3::value_type_boolean;
using kexa_3_3::value_type_integer;
using kexa_3_3::value_type_none;
using kexa_3_3::value_type_string;
using vexkit2::variant_t;

namespace
{

constexpr std::int32_t positionalFlags = flag_unknown_is_error | flag_any_positional_after_marker |
                                         flag_no_hyphen_positional | flag_positional_takes_rest;

OptionSet& append(std::vector<OptionSet>& sets, const char* title, std::int32_t decisiveFlags)
{
    sets.emplace_back();
    sets.back().title = title;
    sets.back().decisiveFlags = decisiveFlags;
    return sets.back();
}

} // namespace

void appendPositionalSets(std::vector<OptionSet>& sets)
{
    OptionSet* set = &append(sets, "positional by mark", positionalFlags | flag_no_value_lists);
    set->declarations.addOption(L"verbose,v", value_type_boolean);
    set->declarations.addOption(L"paths", value_type_string).setMarked();
    set->alphabet = {L"--", L"-", L"", L"x", L"a,b", L",", L"-x", L"-v", L"\u2014pa=y", L"--path"};

    set = &append(sets, "positional by keyword, numbers, with actions", positionalFlags);
    set->declarations.addSwitch(L"list", value_type_none);
    set->declarations.addSwitch(L"sum", value_type_none).addKeywords(L"other");
    set->declarations.addOptionWithKeywords(L"numbers,n", L"kexa_positional_option,other",
                                            value_type_integer);
    set->declarations.addOption(L"rest", value_type_string).setMarked();
    set->alphabet = {L"--", L"1", L"1,2", L"x", L"-1", L"--sum", L"--list", L"-n=4", L"--rest=r"};

    set = &append(sets, "a positional boolean", positionalFlags);
    set->declarations.addOption(L"flag", value_type_boolean).setMarked();
    set->alphabet = {L"1", L"true", L"x", L"", L"--flag", L"--no-flag", L"--", L"1,0"};

    set = &append(sets, "a positional option that takes no value", positionalFlags);
    set->declarations.addOption(L"none", value_type_none).setMarked();
    set->alphabet = {L"", L"x", L"--none", L"--none=1", L"--", L",", L"-"};

    set = &append(sets, "a marked switch, which is not positional", positionalFlags);
    set->declarations.addSwitch(L"go", value_type_none).setMarked();
    set->declarations.addSwitch(L"stay", value_type_string).addKeywords(L"kexa_positional_option");
    set->declarations.addOption(L"data", value_type_string);
    set->alphabet = {L"x", L"--go", L"--data", L"--stay=1", L"--", L"-s", L"--no-go"};

    set = &append(sets, "a positional option with allowed values and handlers", positionalFlags);
    set->declarations.addOption(L"what", value_type_string)
        .addAllowedValue(variant_t(L"this"))
        .addAllowedValue(variant_t(L"that"))
        .addAllowedValue(variant_t(L"-x"))
        .addKeywords(L"kexa_positional_option");
    set->handlers = {{{L"that"}, {L"-y"}}};
    set->alphabet = {L"this", L"tha", L"th", L"this,this", L"-x", L"-y", L"--what", L"--", L""};
}

void appendActionSets(std::vector<OptionSet>& sets)
{
    OptionSet* set = &append(sets, "actions without groups", flag_unknown_is_error);
    set->declarations.addSwitch(L"list,l", value_type_none);
    set->declarations.addSwitch(L"extract,e", value_type_boolean);
    set->declarations.addSwitch(L"write,w", value_type_string);
    set->declarations.addOption(L"out", value_type_string);
    set->alphabet = {L"--list", L"-l", L"--ext",    L"--no-e", L"-w=a", L"--out=a",
                     L"--out",  L"b",  L"--list=1", L"x",      L"--"};

    set = &append(sets, "compatible actions and keywords", flag_unknown_is_error);
    set->declarations.addSwitch(L"zip,a", value_type_none);
    set->declarations.addSwitch(L"remove,r", value_type_none);
    set->declarations.addSwitch(L"test,t", value_type_none);
    set->declarations.addSwitch(L"verify", value_type_none).addKeywords(L"deep,t");
    set->declarations.addOptionWithKeywords(L"level", L"zip", value_type_string);
    set->declarations.addOptionWithKeywords(L"dry,d", L"remove,t", value_type_string);
    set->declarations.addOptionWithKeywords(L"near", L"deep", value_type_boolean)
        .addKeywords(L"r,zip");
    set->declarations.addOption(L"quiet", value_type_boolean);
    set->declarations.compatibleActions = {
        {L"zip", L"remove"}, {L"remove", L"test", L"verify"}, {}, {L"zip", L"unknown"}};
    set->alphabet = {L"-a",      L"--zip",  L"-r",      L"-t",     L"--verify", L"--level=1",
                     L"--dry=2", L"--near", L"--quiet", L"--no-q", L"x"};
}

} // namespace naive
