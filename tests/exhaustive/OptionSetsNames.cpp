// Option sets for finding options: abbreviations, hyphens, "no-", names added later.
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

namespace
{

OptionSet& append(std::vector<OptionSet>& sets, const char* title,
                  std::int32_t decisiveFlags = flag_unknown_is_error)
{
    sets.emplace_back();
    sets.back().title = title;
    sets.back().decisiveFlags = decisiveFlags;
    return sets.back();
}

void appendAbbreviationSets(std::vector<OptionSet>& sets)
{
    OptionSet* set = &append(sets, "no options");
    set->alphabet = {L"--", L"-",    L"",  L"-v",      L"--ver=1", L"--=5",
                     L"-=", L"---x", L"x", L"\u2014-", L"a,b"};

    set = &append(sets, "a boolean and a value option that share a beginning");
    set->declarations.addOption(L"verbose,v", value_type_boolean);
    set->declarations.addOption(L"version", value_type_string);
    set->alphabet = {L"--", L"-",  L"",    L"-v",        L"--ver=1", L"--vers", L"--no-verb",
                     L"x",  L"-x", L"a,b", L"\u2014ver", L"--=5",    L"---x"};

    set = &append(sets, "a single name, which anything empty abbreviates");
    set->declarations.addOption(L"version", value_type_string);
    set->alphabet = {L"--", L"-", L"",     L"-v",      L"--ver=1", L"--=5",
                     L"-=", L"x", L"---x", L"\u2014-", L"-- 5"};

    set = &append(sets, "a name that begins other names");
    set->declarations.addOption(L"ver", value_type_string);
    set->declarations.addOption(L"version", value_type_integer);
    set->declarations.addOption(L"verbose", value_type_boolean);
    set->alphabet = {L"--ver", L"--ver=x", L"-vers",    L"\u2013verb", L"--vers=7",    L"--vers 7",
                     L"x",     L"7",       L"--no-ver", L"--ve",       L"--verbose=1", L"--n"};

    set = &append(sets, "options that take no value");
    set->declarations.addOption(L"force,f", value_type_none);
    set->declarations.addOption(L"format", value_type_string);
    set->alphabet = {L"--force", L"--force=", L"--force=1", L"-f", L"--fo",         L"--form",
                     L"--form=", L"--form=a", L"x",         L"",   L"\u2012-force", L"--"};
}

void appendNegationSets(std::vector<OptionSet>& sets)
{
    OptionSet* set = &append(sets, "a boolean called no-cache before the boolean cache");
    set->declarations.addOption(L"no-cache", value_type_boolean);
    set->declarations.addOption(L"cache", value_type_boolean);
    const std::vector<std::wstring> cacheAlphabet = {
        L"--cache", L"--no-cache", L"--no-no-cache", L"--no",     L"--no-c", L"--c",
        L"--no-n",  L"x",          L"--no-cache=1",  L"--no-no-c"};
    set->alphabet = cacheAlphabet;

    set = &append(sets, "a boolean called no-cache behind the boolean cache");
    set->declarations.addOption(L"cache", value_type_boolean);
    set->declarations.addOption(L"no-cache,n", value_type_boolean);
    set->alphabet = cacheAlphabet;
    set->alphabet.push_back(L"-n");

    set = &append(sets, "a value option called no-color, behind and before the boolean color");
    set->declarations.addOption(L"color", value_type_boolean);
    set->declarations.addOption(L"no-color,c", value_type_string);
    set->declarations.addOption(L"no-tint,t", value_type_string);
    set->declarations.addSwitch(L"tint", value_type_boolean);
    set->alphabet = {L"--no-color", L"--no-color=1", L"--color", L"-c=1", L"--no-co",
                     L"--no-tint",  L"--no-tint=1",  L"--tint",  L"-t",   L"x"};
}

void appendOddNameSets(std::vector<OptionSet>& sets)
{
    OptionSet* set = &append(sets, "names added later, one of them empty, one with a hyphen");
    set->declarations.addOption(L"alpha,a", value_type_string)
        .addName(L"alphabet")
        .addName(L"-odd")
        .addName(L"");
    set->alphabet = {L"---odd=1", L"--alpha=1", L"-a", L"--al=1", L"--alphabet=2,3",
                     L"--",       L"--=1",      L"-",  L"x",      L"-\u2014-odd"};

    set = &append(sets, "a name that another option has too");
    set->declarations.addOption(L"gamma", value_type_string);
    set->declarations.addOption(L"beta", value_type_string).addName(L"gamma");
    set->declarations.addSwitch(L"delta", value_type_none).addName(L"beta");
    set->alphabet = {L"--gamma=1", L"--beta=2", L"--be=3", L"--ga=4",
                     L"--delta",   L"--d",      L"x",      L"--gamma"};

    set = &append(sets, "a name that an option has twice");
    set->declarations.addOption(L"alpha,a", value_type_string).addName(L"a");
    set->declarations.addOption(L"beta,beta", value_type_boolean);
    set->alphabet = {L"--alpha=1", L"-a=2", L"--a=3",  L"--al=4,5",
                     L"--beta",    L"--be", L"--no-b", L"x"};

    set = &append(sets, "declarations that fail", flag_unknown_is_error);
    set->declarations.addOption(L"one,,two", value_type_string);
    set->declarations.addOption(L"a,b,cde", value_type_string);
    set->declarations.addOption(L"a,b,c,d", value_type_string);
    set->declarations.addOption(L"", value_type_string);
    set->declarations.addOption(L",,", value_type_string);
    set->declarations.addOption(L"three,two", value_type_string);
    set->declarations.addOption(L"five,six,f6", value_type_string);
    set->alphabet = {L"--one=1",   L"--two=2", L"--a=1",  L"-b=1", L"--cde=1",
                     L"--three=3", L"--six=6", L"--f6=6", L"x",    L"--f=1"};
}

void appendHyphenSets(std::vector<OptionSet>& sets)
{
    OptionSet* set = &append(sets, "every hyphen character",
                             flag_unknown_is_error | flag_any_positional_after_marker |
                                 flag_no_hyphen_positional);
    set->declarations.addOption(L"name", value_type_string);
    set->declarations.addOption(L"rest", value_type_string).setMarked();
    set->alphabet = {L"\u2012name=1",
                     L"\u2013-name",
                     L"\u2015\u2013name=\U0001F600",
                     L"\u2053name",
                     L"-\u2014na=3",
                     L"\u2014\u2014\u2014name",
                     L"\u2014",
                     L"\u2014\u2014",
                     L"-x",
                     L"\u2010name=1",
                     L"--"};

    set = &append(sets, "white space, and lines that a text of arguments leaves out",
                  flag_unknown_is_error);
    set->declarations.addOption(L"name", value_type_string);
    set->declarations.addOption(L"verbose", value_type_boolean);
    set->alphabet = {L"--name a b", L"--name\ta", L"--name =a", L" --name",
                     L"--name ",    L"--na  =",   L"--name= a", L"x\r",
                     L"--verb 1",   L"--verb ",   L"# x",       L"  ; --name=1"};

    set = &append(sets, "the trace keyword", flag_unknown_is_error | flag_positional_takes_rest);
    set->declarations.addOption(L"name", value_type_string);
    set->declarations.addOption(L"rest", value_type_string).setMarked();
    set->alphabet = {L"kexaoption=kexalogenable=1",
                     L"kexaoption=kexalogenable=0",
                     L"Kexaoption=kexalogenable=1",
                     L"--name=x",
                     L"--",
                     L""};
}

} // namespace

void appendNameSets(std::vector<OptionSet>& sets)
{
    appendAbbreviationSets(sets);
    appendNegationSets(sets);
    appendOddNameSets(sets);
    appendHyphenSets(sets);
}

} // namespace naive
